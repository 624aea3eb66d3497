#include "HeldKeys.h"

#include "Log.h"

#include <cstring>
#include <ecore_wayland.h>
#include <key_router.h>
#include <memory>
#include <optional>

namespace veskar
{

namespace
{

constexpr const char* KEYS[] = {"Up", "Down", "Left", "Right", "Return", "XF86Back"};

std::optional<unsigned int> RouterId(Ecore_Wl2_Display* display)
{
    const std::unique_ptr<Eina_Iterator, void (*)(Eina_Iterator*)> globals(ecore_wl2_display_globals_get(display),
                                                                           eina_iterator_free);
    void* item = nullptr;
    while (eina_iterator_next(globals.get(), &item))
    {
        const auto* global = static_cast<const Ecore_Wl2_Global*>(item);
        if (std::strcmp(global->interface, KEYROUTER_INTERFACE) == 0)
        {
            return global->id;
        }
    }
    return std::nullopt;
}

bool BindRouter()
{
    auto* display = ecore_wl2_connected_display_get(nullptr);
    const auto id = RouterId(display);
    return id && KeyRouter_Initialize(ecore_wl2_display_get(display), ecore_wl2_display_registry_get(display),
                                      ecore_wl2_input_seat_get(ecore_wl2_input_default_input_get(display)), *id) != 0;
}

wl_surface* SurfaceOf(Evas_Object* window)
{
    auto* canvas = ecore_evas_ecore_evas_get(evas_object_evas_get(window));
    return ecore_wl2_window_surface_get(ecore_evas_wayland2_window_get(canvas));
}

} // namespace

HeldKeys::HeldKeys(Evas_Object* window)
{
    if (!BindRouter())
    {
        NUMPAD_WARN("no key router: the pad hears no keys");
        return;
    }
    auto* surface = SurfaceOf(window);
    for (const char* key : KEYS)
    {
        _KeyList list;
        KeyRouter_Reset_KeyList(&list);
        KeyRouter_Add_Key(key, KEYROUTER_MODE_EXCLUSIVE, &list);
        if (KeyRouter_Set_KeyList(surface, &list) == 0)
        {
            NUMPAD_WARN("%s stays with another window, which holds it exclusively", key);
        }
    }
}

HeldKeys::~HeldKeys()
{
    KeyRouter_Finalize();
}

} // namespace veskar
