/** The windows on the screen, one above the other. */
#pragma once

#include "weston/Weston.h"

#include <functional>

namespace veskar
{

/** A window over the screens rather than one of them (see Overlays.h); false for null. */
bool IsOverlay(weston_surface* surface);

/** The screens: overlays are no part of it. */
class WindowStack
{
public:
    /**
     * The shell puts every window but the active one on a layer below the background. A TV's windows lie one above
     * the other, so that layer is moved to just below the active window's.
     */
    explicit WindowStack(weston_compositor* compositor);

    /** The topmost mapped window that `accepts`; null when there is none. */
    weston_surface* Topmost(const std::function<bool(weston_surface*)>& accepts) const;

    weston_surface* Topmost() const;

private:
    weston_compositor* m_compositor;
};

} // namespace veskar
