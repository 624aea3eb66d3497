/** The TV programme: a still picture below all windows, on the first output. An evening, until another is chosen. */
#pragma once

#include "Landscape.h"
#include "Photograph.h"
#include "PictureClient.h"
#include "weston/Listener.h"

#include <string>

namespace veskar
{

class Backdrop
{
public:
    using Done = std::function<void(const std::string& error)>;

    /** `shown` is called each time a new picture is on the output, first soon after the event loop starts. */
    Backdrop(weston_compositor* compositor, std::function<void()> shown);
    ~Backdrop();

    Backdrop(const Backdrop&) = delete;
    Backdrop& operator=(const Backdrop&) = delete;

    /**
     * Shows "evening", "snow" or the picture in a file, which fills the screen. `done` is called once, later, when it
     * is on the output, or immediately with what is wrong; the picture then stays as it is.
     */
    void Choose(const std::string& name, const Done& done);

private:
    std::vector<uint32_t> m_Draw(int width, int height) const;
    void m_Redraw();
    void m_Show(wl_resource* buffer, int width, int height);
    void m_Clear();

    weston_compositor* m_compositor;
    std::function<void()> m_shown;
    std::vector<Done> m_waiting;
    Daylight m_daylight = Daylight::Evening;
    Photograph m_photograph; // shown instead of the landscape unless it is empty
    weston_layer m_layer{};
    weston_surface* m_surface = nullptr;
    PictureClient m_pictures;
    Listener m_outputCreated;
    Listener m_outputResized;
};

} // namespace veskar
