#include "Backdrop.h"

#include "weston/Outputs.h"

#include <utility>

namespace veskar
{

namespace
{

void SetRegion(pixman_region32_t& region, int width, int height)
{
    pixman_region32_fini(&region);
    pixman_region32_init_rect(&region, 0, 0, static_cast<unsigned>(width), static_cast<unsigned>(height));
}

} // namespace

Backdrop::Backdrop(weston_compositor* compositor, std::function<void()> shown)
    : m_compositor(compositor), m_shown(std::move(shown)),
      m_pictures(
          compositor->wl_display, [this](int width, int height) { return m_Draw(width, height); },
          [this](wl_resource* buffer, int width, int height) { m_Show(buffer, width, height); }),
      m_outputCreated(compositor->output_created_signal, [this](void*) { m_Redraw(); }),
      m_outputResized(compositor->output_resized_signal, [this](void*) { m_Redraw(); })
{
    weston_layer_init(&m_layer, compositor);
    // The shell's own background lies at BACKGROUND.
    weston_layer_set_position(&m_layer, static_cast<weston_layer_position>(WESTON_LAYER_POSITION_BACKGROUND + 1));
    m_Redraw();
}

Backdrop::~Backdrop()
{
    m_Clear();
    weston_layer_fini(&m_layer);
}

void Backdrop::Choose(const std::string& name, const Done& done)
{
    const bool isLandscape = name == "evening" || name == "snow";
    Photograph photograph;
    const std::string error = isLandscape ? "" : photograph.Read(name);
    if (!error.empty())
    {
        done(error);
        return;
    }
    m_photograph = std::move(photograph);
    m_daylight = name == "snow" ? Daylight::Snow : Daylight::Evening;
    m_waiting.push_back(done);
    m_Redraw();
}

std::vector<uint32_t> Backdrop::m_Draw(int width, int height) const
{
    return m_photograph ? m_photograph.Filling(width, height) : DrawLandscape(width, height, m_daylight);
}

void Backdrop::m_Redraw()
{
    if (const weston_output* output = FirstOutput(m_compositor))
    {
        m_pictures.Request(output->width, output->height);
    }
}

void Backdrop::m_Show(wl_resource* buffer, int width, int height)
{
    m_Clear();
    m_surface = weston_surface_create(m_compositor);
    weston_view* view = weston_view_create(m_surface);
    m_compositor->renderer->attach(m_surface, weston_buffer_from_resource(buffer));
    weston_surface_set_size(m_surface, width, height);
    SetRegion(m_surface->opaque, width, height);
    SetRegion(m_surface->input, 0, 0); // it takes no clicks
    m_surface->is_mapped = true;
    view->is_mapped = true;
    weston_view_set_position(view, 0, 0);
    weston_layer_entry_insert(&m_layer.view_list, &view->layer_link);
    weston_surface_damage(m_surface);
    weston_compositor_schedule_repaint(m_compositor);
    m_shown();
    for (const Done& done : std::exchange(m_waiting, {}))
    {
        done("");
    }
}

void Backdrop::m_Clear()
{
    if (m_surface != nullptr)
    {
        weston_surface_destroy(m_surface); // and its view
        m_surface = nullptr;
    }
}

} // namespace veskar
