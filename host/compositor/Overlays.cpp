#include "Overlays.h"

#include "Unfocused.h"

namespace veskar
{

Overlays::Overlays(weston_compositor* compositor, const Seat& seat, const WindowStack& windows)
    : m_seat(seat), m_windows(windows),
      m_activated(compositor->activate_signal,
                  [this](void* data) { onActivated(static_cast<weston_surface_activation_data*>(data)->surface); })
{
}

/** The shell gives every window that appears the focus. */
void Overlays::onActivated(weston_surface* surface)
{
    if (!isOverlay(surface) || m_seat.keyboard() == nullptr)
    {
        return;
    }
    weston_surface* screen = m_windows.topmost();
    weston_keyboard_set_focus(m_seat.keyboard(), screen);
    tellOfFocus(m_seat.keyboard(), surface);
    m_overlay.set(surface);
    stayOver(screen);
}

void Overlays::stayOver(weston_surface* screen)
{
    m_screenCommitted.reset();
    m_screenDestroyed.reset();
    if (!isOverlay(m_overlay.get()))
    {
        return;
    }
    if (screen == nullptr)
    {
        weston_desktop_surface_close(weston_surface_get_desktop_surface(m_overlay.get()));
        return;
    }
    // A window is hidden by a commit without a picture, and the library tells of that in no other way.
    m_screenCommitted.emplace(screen->commit_signal,
                              [this, screen](void*)
                              {
                                  if (!weston_surface_is_mapped(screen))
                                  {
                                      stayOver(m_windows.topmost());
                                  }
                              });
    m_screenDestroyed.emplace(screen->destroy_signal, [this](void*) { stayOver(m_windows.topmost()); });
}

} // namespace veskar
