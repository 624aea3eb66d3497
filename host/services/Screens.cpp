#include "Screens.h"

#include <utility>

namespace veskar
{
std::weak_ptr<Waiter> Screens::Add(std::string client, ScreenIds screen, Waiter::Result result)
{
    return m_waiters.emplace_back(std::make_shared<Waiter>(Waiter{std::move(client), screen, std::move(result)}));
}

void Screens::Fail(const std::shared_ptr<Waiter>& waiter, const sdbus::Error& error)
{
    waiter->result.returnError(error);
    m_waiters.remove(waiter);
}

std::size_t Screens::Answered(const Answer& answer)
{
    const auto before = m_waiters.size();
    m_waiters.remove_if(
        [&answer](const std::shared_ptr<Waiter>& waiter)
        {
            if (!waiter->delivered || !(waiter->screen == answer.screen))
            {
                return false;
            }
            waiter->result.returnResults(answer.screen.uiId, answer.screen.sourceId, answer.kind, answer.button,
                                         answer.item, answer.data);
            return true;
        });
    return before - m_waiters.size();
}

void Screens::ProcessLeft()
{
    for (const auto& waiter : m_waiters)
    {
        waiter->delivered = true;
    }
}

void Screens::FailDelivered(const sdbus::Error& error)
{
    m_waiters.remove_if(
        [&error](const std::shared_ptr<Waiter>& waiter)
        {
            if (waiter->delivered)
            {
                waiter->result.returnError(error);
            }
            return waiter->delivered;
        });
}

void Screens::RemoveClient(const std::string& client)
{
    m_waiters.remove_if([&client](const std::shared_ptr<Waiter>& waiter) { return waiter->client == client; });
}
} // namespace veskar
