#include "WindowStack.h"

#include "TvBus.h"

#include <cstring>

namespace veskar
{

namespace
{

weston_layer* LayerAt(weston_compositor* compositor, weston_layer_position position)
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

bool IsScreen(const weston_view* view)
{
    return view->is_mapped && view->surface->resource != nullptr && weston_surface_is_desktop_surface(view->surface) &&
           !IsOverlay(view->surface);
}

} // namespace

bool IsOverlay(weston_surface* surface)
{
    if (surface == nullptr || !weston_surface_is_desktop_surface(surface))
    {
        return false;
    }
    const char* id = weston_desktop_surface_get_app_id(weston_surface_get_desktop_surface(surface));
    return id != nullptr && std::strcmp(id, Applications::NUMBER_PAD) == 0;
}

WindowStack::WindowStack(weston_compositor* compositor) : m_compositor(compositor)
{
    weston_layer* inactive = LayerAt(compositor, WESTON_LAYER_POSITION_HIDDEN);
    if (inactive != nullptr)
    {
        weston_layer_set_position(inactive, static_cast<weston_layer_position>(WESTON_LAYER_POSITION_NORMAL - 1));
    }
}

weston_surface* WindowStack::Topmost(const std::function<bool(weston_surface*)>& accepts) const
{
    // Layers and their views are in order from the top. The compositor's own view list is updated once a frame only.
    weston_layer* layer;
    wl_list_for_each(layer, &m_compositor->layer_list, link)
    {
        weston_view* view;
        wl_list_for_each(view, &layer->view_list.link, layer_link.link)
        {
            if (IsScreen(view) && accepts(view->surface))
            {
                return view->surface;
            }
        }
    }
    return nullptr;
}

weston_surface* WindowStack::Topmost() const
{
    return Topmost([](weston_surface*) { return true; });
}

} // namespace veskar
