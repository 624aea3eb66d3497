#include "Unfocused.h"

namespace veskar
{

namespace
{

template <typename Send>
void ToEachKeyboardOf(weston_surface* surface, weston_keyboard* keyboard, Send send)
{
    wl_client* client = wl_resource_get_client(surface->resource);
    const uint32_t serial = wl_display_next_serial(keyboard->seat->compositor->wl_display);
    wl_resource* resource;
    wl_resource_for_each(resource, &keyboard->resource_list)
    {
        if (wl_resource_get_client(resource) == client)
        {
            send(resource, serial);
        }
    }
}

} // namespace

void TellOfFocus(weston_keyboard* keyboard, weston_surface* surface)
{
    wl_array noKeys{};
    wl_array_init(&noKeys);
    ToEachKeyboardOf(surface, keyboard,
                     [&](wl_resource* resource, uint32_t serial)
                     { wl_keyboard_send_enter(resource, serial, surface->resource, &noKeys); });
}

void TellOfLostFocus(weston_keyboard* keyboard, weston_surface* surface)
{
    ToEachKeyboardOf(surface, keyboard,
                     [&](wl_resource* resource, uint32_t serial)
                     { wl_keyboard_send_leave(resource, serial, surface->resource); });
}

void SendUnfocused(weston_keyboard* keyboard, const timespec* time, const Key& key, wl_keyboard_key_state state,
                   weston_surface* surface)
{
    const auto milliseconds = static_cast<uint32_t>(time->tv_sec * 1000 + time->tv_nsec / 1000000);
    ToEachKeyboardOf(surface, keyboard,
                     [&](wl_resource* resource, uint32_t serial)
                     { wl_keyboard_send_key(resource, serial, milliseconds, key.code, state); });
}

} // namespace veskar
