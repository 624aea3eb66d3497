/** The order of the windows on the display. */
#pragma once

#include "weston/Weston.h"

#include <functional>

namespace veskar
{

/** True for a window that lies over the screens and is none of them (see Overlays.h). False for null. */
bool IsOverlay(weston_surface* surface);

/** Overlays are not included. */
class WindowStack
{
public:
    /**
     * The shell puts every window except the active one on a layer below the background. On a TV lower windows stay
     * visible, so this moves that layer to just below the active window's.
     */
    explicit WindowStack(weston_compositor* compositor);

    /** The topmost mapped window for which `accepts` is true, or null. */
    weston_surface* Topmost(const std::function<bool(weston_surface*)>& accepts) const;

    weston_surface* Topmost() const;

private:
    weston_compositor* m_compositor;
};

} // namespace veskar
