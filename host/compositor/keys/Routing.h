/**
 * Where a key goes.
 *
 * To the surface that holds it exclusively; else to the topmost window, if that one holds it topmost; else to the
 * topmost window that registered it (one that is shown but not drawn yet is below all others); else to the window with
 * the focus. A key goes up where it went down.
 */
#pragma once

#include "GrabTable.h"
#include "seat/Seat.h"
#include "weston/SurfaceRef.h"
#include "windows/WindowStack.h"

#include <map>

namespace veskar
{

class Routing
{
public:
    /** Everything given must outlive this object. */
    Routing(Seat& seat, const GrabTable& grabs, const WindowStack& windows);
    ~Routing();

    Routing(const Routing&) = delete;
    Routing& operator=(const Routing&) = delete;

private:
    struct Hook
    {
        weston_keyboard_grab_interface handlers; // first: its address is the hook's
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
    const WindowStack& m_windows;
    Hook m_hook{};
    const weston_keyboard_grab_interface* m_replaced = nullptr;
    std::map<const Key*, SurfaceRef> m_pressed;
    SurfaceRef m_borrower;
    SurfaceRef m_lender;
};

} // namespace veskar
