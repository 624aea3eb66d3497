#include "KeyRouter.h"

#include "tizen-keyrouter-server-protocol.h"

#include <algorithm>
#include <optional>

namespace veskar
{

namespace
{

/** Null for a binding that has outlived the router. */
KeyRouter* RouterOf(wl_resource* resource)
{
    return static_cast<KeyRouter*>(wl_resource_get_user_data(resource));
}

std::optional<GrabMode> ModeOf(uint32_t mode)
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

tizen_keyrouter_result GrabKey(GrabTable& grabs, wl_client* client, wl_resource* surface, const char* name,
                               uint32_t mode)
{
    const Key* key = KeyByName(name);
    if (key == nullptr)
    {
        return TIZEN_KEYROUTER_RESULT_UNKNOWN_KEY;
    }
    const auto known = ModeOf(mode);
    if (!known)
    {
        return TIZEN_KEYROUTER_RESULT_UNKNOWN_MODE;
    }
    auto* target = static_cast<weston_surface*>(wl_resource_get_user_data(surface));
    return grabs.Add(client, target, *key, *known) ? TIZEN_KEYROUTER_RESULT_GRANTED : TIZEN_KEYROUTER_RESULT_TAKEN;
}

void OnDestroy(wl_client*, wl_resource* resource)
{
    wl_resource_destroy(resource);
}

void OnGrab(wl_client* client, wl_resource* resource, wl_resource* surface, const char* name, uint32_t mode)
{
    if (KeyRouter* router = RouterOf(resource))
    {
        tizen_keyrouter_send_grabbed(resource, name, mode, GrabKey(router->Grabs(), client, surface, name, mode));
    }
}

void OnUngrab(wl_client*, wl_resource* resource, wl_resource* surface, const char* name, uint32_t mode)
{
    KeyRouter* router = RouterOf(resource);
    const Key* key = KeyByName(name);
    const auto known = ModeOf(mode);
    if (router != nullptr && key != nullptr && known)
    {
        router->Grabs().Remove(static_cast<weston_surface*>(wl_resource_get_user_data(surface)), *key, *known);
    }
}

void OnHeard(wl_client* client, wl_resource* resource, uint32_t code, uint32_t taken)
{
    if (KeyRouter* router = RouterOf(resource))
    {
        router->Heard(client, code, taken != 0);
    }
}

void OnScreen(wl_client*, wl_resource* resource, uint32_t drawn, int32_t uiId)
{
    if (KeyRouter* router = RouterOf(resource))
    {
        router->SetScreen(resource, drawn != 0 ? std::optional<int>(uiId) : std::nullopt);
    }
}

const struct tizen_keyrouter_interface REQUESTS = {OnDestroy, OnGrab, OnUngrab, OnHeard, OnScreen};

} // namespace

KeyRouter::KeyRouter(wl_display* display, GrabTable& grabs, TakenKeys& taken)
    : m_grabs(grabs), m_taken(taken),
      m_global(wl_global_create(display, &tizen_keyrouter_interface, tizen_keyrouter_interface.version, this, s_Bind))
{
}

KeyRouter::~KeyRouter()
{
    wl_global_destroy(m_global);
    for (const auto& [resource, screen] : m_bound)
    {
        wl_resource_set_user_data(resource, nullptr);
    }
}

void KeyRouter::Heard(wl_client* client, uint32_t code, bool taken)
{
    if (taken)
    {
        pid_t pid = 0;
        wl_client_get_credentials(client, &pid, nullptr, nullptr);
        m_taken.Taken(code, pid);
    }
    m_presses.Heard(client, code, taken);
}

bool KeyRouter::IsBoundBy(const wl_client* client) const
{
    return std::any_of(m_bound.begin(), m_bound.end(),
                       [client](const auto& bound) { return wl_resource_get_client(bound.first) == client; });
}

std::vector<KeyRouter::Screen> KeyRouter::Screens() const
{
    std::vector<Screen> screens;
    for (const auto& [resource, uiId] : m_bound)
    {
        if (uiId)
        {
            screens.push_back({wl_resource_get_client(resource), *uiId});
        }
    }
    return screens;
}

void KeyRouter::s_Bind(wl_client* client, void* self, uint32_t version, uint32_t id)
{
    wl_resource* resource = wl_resource_create(client, &tizen_keyrouter_interface, static_cast<int>(version), id);
    if (resource == nullptr)
    {
        wl_client_post_no_memory(client);
        return;
    }
    wl_resource_set_implementation(resource, &REQUESTS, self, s_Unbind);
    static_cast<KeyRouter*>(self)->m_bound.emplace(resource, std::nullopt);
    for (const Key& key : AllKeys())
    {
        tizen_keyrouter_send_key(resource, key.name, key.code);
    }
}

void KeyRouter::s_Unbind(wl_resource* resource)
{
    KeyRouter* router = RouterOf(resource);
    if (router == nullptr)
    {
        return;
    }
    router->m_grabs.RemoveClient(wl_resource_get_client(resource));
    router->m_bound.erase(resource);
    router->m_presses.ClientGone(wl_resource_get_client(resource));
}

} // namespace veskar
