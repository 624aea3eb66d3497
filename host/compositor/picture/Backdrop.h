/** The TV programme: a still picture below all windows, on the first output. */
#pragma once

#include "PictureClient.h"
#include "weston/Listener.h"

namespace veskar
{

class Backdrop
{
public:
    /** `shown` is called each time a new picture is on the output, first soon after the event loop starts. */
    Backdrop(weston_compositor* compositor, std::function<void()> shown);
    ~Backdrop();

    Backdrop(const Backdrop&) = delete;
    Backdrop& operator=(const Backdrop&) = delete;

private:
    void m_Redraw();
    void m_Show(wl_resource* buffer, int width, int height);
    void m_Clear();

    weston_compositor* m_compositor;
    std::function<void()> m_shown;
    weston_layer m_layer{};
    weston_surface* m_surface = nullptr;
    PictureClient m_pictures;
    Listener m_outputCreated;
    Listener m_outputResized;
};

} // namespace veskar
