/**
 * Decides which surface gets a key. The first of these that exists:
 *
 *  - the surface that holds the key exclusively;
 *  - the topmost window, if it holds the key in mode Topmost;
 *  - none, for a late digit;
 *  - the topmost window that registered the key (a window that is shown but not drawn yet counts as the lowest);
 *  - the window with the focus.
 *
 * The release of a key goes to the surface that got the press.
 */
#pragma once

#include "GrabTable.h"
#include "LateDigits.h"
#include "TakenKeys.h"
#include "seat/Seat.h"
#include "weston/SurfaceRef.h"
#include "windows/WindowStack.h"

#include <map>

namespace veskar
{

class Routing
{
public:
    /** All arguments must outlive this object. */
    Routing(Seat& seat, const GrabTable& grabs, const LateDigits& lateDigits, const WindowStack& windows,
            TakenKeys& taken);
    ~Routing();

    Routing(const Routing&) = delete;
    Routing& operator=(const Routing&) = delete;

    /** The surface that got the press of a key that is down; null when none did. */
    weston_surface* HeardBy(const Key& key) const;

private:
    struct Hook
    {
        weston_keyboard_grab_interface handlers; // must be first: its address is also the hook's
        Routing* self;
    };

    static void s_OnKey(weston_keyboard_grab* grab, const timespec* time, uint32_t code, uint32_t state);

    void m_KeyDown(const timespec* time, const Key& key);
    void m_KeyUp(const timespec* time, const Key& key);
    weston_surface* m_TargetOf(const Key& key) const;
    void m_LendFocus(weston_surface* target);
    void m_GiveFocusBack();

    Seat& m_seat;
    const GrabTable& m_grabs;
    const LateDigits& m_lateDigits;
    const WindowStack& m_windows;
    TakenKeys& m_taken;
    Hook m_hook{};
    const weston_keyboard_grab_interface* m_replaced = nullptr;
    std::map<const Key*, SurfaceRef> m_pressed;
    SurfaceRef m_borrower;
    SurfaceRef m_lender;
};

} // namespace veskar
