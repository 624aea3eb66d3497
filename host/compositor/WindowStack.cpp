#include "WindowStack.h"

#include <string_view>

namespace veskar
{

namespace
{

constexpr std::string_view NUMBER_PAD = "org.tizen.function-osd";

weston_layer* layerAt(weston_compositor* compositor, weston_layer_position position)
{
    weston_layer* layer;
    wl_list_for_each(layer, &compositor->layer_list, link)
    {
        if (layer->position == position)
        {
            return layer;
        }
    }
    return nullptr;
}

bool isScreen(const weston_view* view)
{
    return view->is_mapped && view->surface->resource != nullptr && weston_surface_is_desktop_surface(view->surface) &&
           !isOverlay(view->surface);
}

} // namespace

bool isOverlay(weston_surface* surface)
{
    if (surface == nullptr || !weston_surface_is_desktop_surface(surface))
    {
        return false;
    }
    const char* id = weston_desktop_surface_get_app_id(weston_surface_get_desktop_surface(surface));
    return id != nullptr && id == NUMBER_PAD;
}

WindowStack::WindowStack(weston_compositor* compositor) : m_compositor(compositor)
{
    weston_layer* inactive = layerAt(compositor, WESTON_LAYER_POSITION_HIDDEN);
    if (inactive != nullptr)
    {
        weston_layer_set_position(inactive, static_cast<weston_layer_position>(WESTON_LAYER_POSITION_NORMAL - 1));
    }
}

weston_surface* WindowStack::topmost(const std::function<bool(weston_surface*)>& accepts) const
{
    // Layers and their views are in order from the top; the compositor's own view list is as old as the last frame.
    weston_layer* layer;
    wl_list_for_each(layer, &m_compositor->layer_list, link)
    {
        weston_view* view;
        wl_list_for_each(view, &layer->view_list.link, layer_link.link)
        {
            if (isScreen(view) && accepts(view->surface))
            {
                return view->surface;
            }
        }
    }
    return nullptr;
}

weston_surface* WindowStack::topmost() const
{
    return topmost([](weston_surface*) { return true; });
}

} // namespace veskar
