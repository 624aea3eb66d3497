#include "Screens.h"

#include "DeskBus.h"

#include <utility>

namespace veskar
{
namespace
{
sdbus::Error Gone()
{
    return sdbus::Error{Desk::GONE, "the application went away without an answer"};
}

} // namespace

std::weak_ptr<Waiter> Screens::Add(std::string client, ScreenIds screen, Outcome outcome)
{
    return m_waiters.emplace_back(std::make_shared<Waiter>(Waiter{std::move(client), screen, std::move(outcome)}));
}

void Screens::Fail(const std::shared_ptr<Waiter>& waiter, const sdbus::Error& error)
{
    waiter->outcome.failed(error);
    m_waiters.remove(waiter);
}

void Screens::Delivered(const std::shared_ptr<Waiter>& waiter, const std::string& process)
{
    if (process.empty())
    {
        Fail(waiter, Gone());
        return;
    }
    waiter->process = process;
    waiter->passedOn = false;
}

std::size_t Screens::Answered(const Answer& answer, const std::string& process)
{
    const auto before = m_waiters.size();
    m_waiters.remove_if(
        [&answer, &process](const std::shared_ptr<Waiter>& waiter)
        {
            if (waiter->process != process || !(waiter->screen == answer.screen))
            {
                return false;
            }
            waiter->outcome.answered(answer);
            return true;
        });
    return before - m_waiters.size();
}

void Screens::ProcessLeft()
{
    for (const auto& waiter : m_waiters)
    {
        waiter->passedOn = waiter->passedOn || waiter->process.empty();
    }
}

void Screens::ProcessCame(const std::string& process)
{
    for (const auto& waiter : m_waiters)
    {
        if (waiter->passedOn)
        {
            waiter->process = process;
        }
    }
}

std::size_t Screens::ProcessEnded(const std::string& process)
{
    const auto before = m_waiters.size();
    m_waiters.remove_if(
        [&process](const std::shared_ptr<Waiter>& waiter)
        {
            // The reply to a request that was passed on is still to come, and says what became of it.
            const bool ended = waiter->process == process && !waiter->passedOn;
            if (ended)
            {
                waiter->outcome.failed(Gone());
            }
            return ended;
        });
    return before - m_waiters.size();
}

void Screens::RemoveClient(const std::string& client)
{
    m_waiters.remove_if([&client](const std::shared_ptr<Waiter>& waiter) { return waiter->client == client; });
}

} // namespace veskar
