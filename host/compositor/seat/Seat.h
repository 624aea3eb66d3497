/** The seat of the TV: its keyboard is the remote control. */
#pragma once

#include "FreeWith.h"
#include "KeyTable.h"
#include "weston/Listener.h"

#include <memory>

namespace veskar
{

class Seat
{
public:
    /**
     * Uses the backend's first seat if there is one, because the shell handles only one; creates a seat otherwise.
     * Throws std::runtime_error.
     */
    explicit Seat(weston_compositor* compositor);
    ~Seat();

    Seat(const Seat&) = delete;
    Seat& operator=(const Seat&) = delete;

    /** Null after the backend has removed its seat. */
    weston_keyboard* Keyboard() const;

    /** True when the TV is a window on a desktop, where a person can type. */
    bool HasRealKeyboard() const { return !m_own; }

    /** Restores the remote control's keymap, which the backend replaces whenever the desktop's keymap changes. */
    void KeepKeymap();

    /** Sends a key event as the remote control does. Does nothing while there is no keyboard. */
    void Inject(const Key& key, wl_keyboard_key_state state);

private:
    std::unique_ptr<xkb_keymap, FreeWith<xkb_keymap_unref>> m_keymap;
    std::unique_ptr<weston_seat> m_own;
    weston_seat* m_seat = nullptr;
    std::unique_ptr<Listener> m_gone;
};

} // namespace veskar
