#include "GrabTable.h"

#include <algorithm>

namespace veskar
{

namespace
{

bool IsRegistration(GrabMode mode)
{
    return mode == GrabMode::Registered;
}

} // namespace

const char* NameOf(GrabMode mode)
{
    switch (mode)
    {
    case GrabMode::Topmost:
        return "topmost";
    case GrabMode::Exclusive:
        return "exclusive";
    case GrabMode::Registered:
        return "registered";
    }
    return "unknown";
}

bool GrabTable::Add(wl_client* client, weston_surface* surface, const Key& key, GrabMode mode)
{
    const weston_surface* holder = ExclusiveHolder(key);
    if (mode == GrabMode::Exclusive && holder != nullptr && holder != surface)
    {
        return false;
    }
    m_grabs.remove_if(
        [&](const Grab& grab)
        { return grab.surface == surface && grab.key == &key && IsRegistration(grab.mode) == IsRegistration(mode); });
    m_grabs.push_back({surface, client, &key, mode, nullptr});
    const auto added = std::prev(m_grabs.end());
    added->surfaceGone =
        std::make_unique<Listener>(surface->destroy_signal, [this, added](void*)
                                   { m_RemoveIf([added](const Grab& grab) { return &grab == &*added; }); });
    return true;
}

void GrabTable::m_RemoveIf(const std::function<bool(const Grab&)>& isMeant)
{
    std::list<Grab> ended;
    for (auto grab = m_grabs.begin(); grab != m_grabs.end();)
    {
        const auto next = std::next(grab);
        if (isMeant(*grab))
        {
            ended.splice(ended.end(), m_grabs, grab);
        }
        grab = next;
    }
    for (const Grab& grab : ended)
    {
        m_ended(*grab.key, grab.mode);
    }
}

void GrabTable::Remove(weston_surface* surface, const Key& key, GrabMode mode)
{
    m_RemoveIf([&](const Grab& grab) { return grab.surface == surface && grab.key == &key && grab.mode == mode; });
}

void GrabTable::RemoveClient(wl_client* client)
{
    m_RemoveIf([client](const Grab& grab) { return grab.client == client; });
}

bool GrabTable::Holds(weston_surface* surface, const Key& key, GrabMode mode) const
{
    return std::any_of(m_grabs.begin(), m_grabs.end(),
                       [&](const Grab& grab)
                       { return grab.surface == surface && grab.key == &key && grab.mode == mode; });
}

weston_surface* GrabTable::Holder(const Key& key, GrabMode mode,
                                  const std::function<bool(weston_surface*)>& accepts) const
{
    const auto found =
        std::find_if(m_grabs.begin(), m_grabs.end(),
                     [&](const Grab& grab) { return grab.key == &key && grab.mode == mode && accepts(grab.surface); });
    return found == m_grabs.end() ? nullptr : found->surface;
}

weston_surface* GrabTable::ExclusiveHolder(const Key& key) const
{
    return Holder(key, GrabMode::Exclusive, [](weston_surface*) { return true; });
}

} // namespace veskar
