/**
 * Windows that lie over a screen and serve it, such as the number pad.
 *
 * An overlay does not get the keyboard focus, so keys that it does not grab go to the screen below; but it is told that
 * it has the focus. When no screen is left below it, for whatever reason, it is told that it has lost it, and hides.
 */
#pragma once

#include "WindowStack.h"
#include "seat/Seat.h"
#include "weston/SurfaceRef.h"

#include <optional>

namespace veskar
{

class Overlays
{
public:
    /** All arguments must outlive this object. */
    Overlays(weston_compositor* compositor, const Seat& seat, const WindowStack& windows);

    Overlays(const Overlays&) = delete;
    Overlays& operator=(const Overlays&) = delete;

private:
    void m_OnActivated(weston_surface* surface);
    void m_StayOver(weston_surface* screen);

    const Seat& m_seat;
    const WindowStack& m_windows;
    Listener m_activated;
    SurfaceRef m_overlay;
    std::optional<Listener> m_screenCommitted;
    std::optional<Listener> m_screenDestroyed;
};

} // namespace veskar
