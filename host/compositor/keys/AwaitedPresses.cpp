#include "AwaitedPresses.h"

#include <algorithm>

namespace veskar
{

void AwaitedPresses::Await(wl_client* client, const Key& key, Told told)
{
    m_awaited.push_back({client, key.code, std::move(told)});
}

void AwaitedPresses::Heard(wl_client* client, uint32_t code, bool taken)
{
    const auto found = std::find_if(m_awaited.begin(), m_awaited.end(),
                                    [&](const Awaited& each) { return each.client == client && each.code == code; });
    if (found == m_awaited.end())
    {
        return;
    }
    const Told told = std::move(found->told);
    m_awaited.erase(found);
    told(taken ? Reception::Taken : Reception::HeldBack);
}

void AwaitedPresses::ClientGone(wl_client* client)
{
    std::list<Awaited> gone;
    for (auto each = m_awaited.begin(); each != m_awaited.end();)
    {
        const auto next = std::next(each);
        if (each->client == client)
        {
            gone.splice(gone.end(), m_awaited, each);
        }
        each = next;
    }
    for (const Awaited& each : gone)
    {
        each.told(Reception::Nobody);
    }
}

} // namespace veskar
