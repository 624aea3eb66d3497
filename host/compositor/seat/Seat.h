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
    /** Takes the backend's first seat where it has one (the shell can handle one only) and makes one where not. */
    explicit Seat(weston_compositor* compositor);
    ~Seat();

    Seat(const Seat&) = delete;
    Seat& operator=(const Seat&) = delete;

    /** Null once the backend has taken its seat away. */
    weston_keyboard* Keyboard() const;

    /** The backend shows a window on a desktop, and a person can type there. */
    bool HasRealKeyboard() const { return !m_own; }

    /** The backend replaces the keymap whenever the desktop's changes; ours comes back here. */
    void KeepKeymap();

    void Inject(const Key& key, wl_keyboard_key_state state);

private:
    std::unique_ptr<xkb_keymap, FreeWith<xkb_keymap_unref>> m_keymap;
    std::unique_ptr<weston_seat> m_own;
    weston_seat* m_seat = nullptr;
    std::unique_ptr<Listener> m_gone;
};

} // namespace veskar
