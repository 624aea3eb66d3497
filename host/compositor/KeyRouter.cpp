#include "KeyRouter.h"

#include "tizen-keyrouter-server-protocol.h"

#include <algorithm>
#include <optional>

namespace veskar
{

namespace
{

/** Null for a binding that has outlived the router. */
KeyRouter* routerOf(wl_resource* resource)
{
    return static_cast<KeyRouter*>(wl_resource_get_user_data(resource));
}

std::optional<GrabMode> modeOf(uint32_t mode)
{
    switch (mode)
    {
    case TIZEN_KEYROUTER_MODE_TOPMOST:
    case TIZEN_KEYROUTER_MODE_EXCLUSIVE:
    case TIZEN_KEYROUTER_MODE_REGISTERED:
        return static_cast<GrabMode>(mode);
    default:
        return std::nullopt;
    }
}

tizen_keyrouter_result grabKey(GrabTable& grabs, wl_client* client, wl_resource* surface, const char* name,
                               uint32_t mode)
{
    const Key* key = keyByName(name);
    if (key == nullptr)
    {
        return TIZEN_KEYROUTER_RESULT_UNKNOWN_KEY;
    }
    const auto known = modeOf(mode);
    if (!known)
    {
        return TIZEN_KEYROUTER_RESULT_UNKNOWN_MODE;
    }
    auto* target = static_cast<weston_surface*>(wl_resource_get_user_data(surface));
    return grabs.add(client, target, *key, *known) ? TIZEN_KEYROUTER_RESULT_GRANTED : TIZEN_KEYROUTER_RESULT_TAKEN;
}

void onDestroy(wl_client*, wl_resource* resource)
{
    wl_resource_destroy(resource);
}

void onGrab(wl_client* client, wl_resource* resource, wl_resource* surface, const char* name, uint32_t mode)
{
    if (KeyRouter* router = routerOf(resource))
    {
        tizen_keyrouter_send_grabbed(resource, name, mode, grabKey(router->grabs(), client, surface, name, mode));
    }
}

void onUngrab(wl_client*, wl_resource* resource, wl_resource* surface, const char* name, uint32_t mode)
{
    KeyRouter* router = routerOf(resource);
    const Key* key = keyByName(name);
    const auto known = modeOf(mode);
    if (router != nullptr && key != nullptr && known)
    {
        router->grabs().remove(static_cast<weston_surface*>(wl_resource_get_user_data(surface)), *key, *known);
    }
}

const struct tizen_keyrouter_interface REQUESTS = {onDestroy, onGrab, onUngrab};

} // namespace

KeyRouter::KeyRouter(wl_display* display, GrabTable& grabs)
    : m_grabs(grabs),
      m_global(wl_global_create(display, &tizen_keyrouter_interface, tizen_keyrouter_interface.version, this, bind))
{
}

KeyRouter::~KeyRouter()
{
    wl_global_destroy(m_global);
    for (wl_resource* resource : m_bound)
    {
        wl_resource_set_user_data(resource, nullptr);
    }
}

void KeyRouter::bind(wl_client* client, void* self, uint32_t version, uint32_t id)
{
    wl_resource* resource = wl_resource_create(client, &tizen_keyrouter_interface, static_cast<int>(version), id);
    if (resource == nullptr)
    {
        wl_client_post_no_memory(client);
        return;
    }
    wl_resource_set_implementation(resource, &REQUESTS, self, unbind);
    static_cast<KeyRouter*>(self)->m_bound.push_back(resource);
    for (const Key& key : allKeys())
    {
        tizen_keyrouter_send_key(resource, key.name, key.code);
    }
}

void KeyRouter::unbind(wl_resource* resource)
{
    KeyRouter* router = routerOf(resource);
    if (router == nullptr)
    {
        return;
    }
    router->m_grabs.removeClient(wl_resource_get_client(resource));
    router->m_bound.erase(std::find(router->m_bound.begin(), router->m_bound.end(), resource));
}

} // namespace veskar
