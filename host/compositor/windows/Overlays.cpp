#include "Overlays.h"

#include "seat/Unfocused.h"

namespace veskar
{

Overlays::Overlays(weston_compositor* compositor, const Seat& seat, const WindowStack& windows)
    : m_seat(seat), m_windows(windows),
      m_activated(compositor->activate_signal,
                  [this](void* data) { m_OnActivated(static_cast<weston_surface_activation_data*>(data)->surface); })
{
}

/** The shell gives the focus to every window that appears; an overlay must not keep it. */
void Overlays::m_OnActivated(weston_surface* surface)
{
    if (!IsOverlay(surface) || m_seat.Keyboard() == nullptr)
    {
        return;
    }
    weston_surface* screen = m_windows.Topmost();
    weston_keyboard_set_focus(m_seat.Keyboard(), screen);
    TellOfFocus(m_seat.Keyboard(), surface);
    m_overlay.Set(surface);
    m_StayOver(screen);
}

void Overlays::m_StayOver(weston_surface* screen)
{
    m_screenCommitted.reset();
    m_screenDestroyed.reset();
    if (!IsOverlay(m_overlay.Get()) || m_seat.Keyboard() == nullptr)
    {
        return;
    }
    if (screen == nullptr)
    {
        // Not a request to close: the toolkit frees its half of the window when it gets one, and then crashes.
        TellOfLostFocus(m_seat.Keyboard(), m_overlay.Get());
        return;
    }
    // A client hides a window by a commit without a picture. The library has no other signal for that.
    m_screenCommitted.emplace(screen->commit_signal,
                              [this, screen](void*)
                              {
                                  if (!weston_surface_is_mapped(screen))
                                  {
                                      m_StayOver(m_windows.Topmost());
                                  }
                              });
    m_screenDestroyed.emplace(screen->destroy_signal, [this](void*) { m_StayOver(m_windows.Topmost()); });
}

} // namespace veskar
