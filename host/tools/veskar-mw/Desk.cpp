#include "Desk.h"

#include "FollowedProgress.h"
#include "ServeOnce.h"

#include <algorithm>

namespace veskar
{
namespace
{
using namespace std::chrono_literals;

constexpr const char* TIMEOUT = "org.freedesktop.DBus.Error.Timeout";
constexpr const char* NOT_UTF8 = "org.freedesktop.DBus.Error.InvalidArgs";
constexpr const char* TOO_BIG = "org.freedesktop.DBus.Error.InconsistentMessage";

} // namespace

RequestData OnTheBus(const Request& request)
{
    RequestData data;
    for (const auto& [key, value] : request.Values())
    {
        data.emplace(key, std::visit([](const auto& held) { return sdbus::Variant{held}; }, value));
    }
    return data;
}

DeskConnection::DeskConnection(std::chrono::microseconds timeout)
    : m_deadline(Clock::now() + timeout), m_connection(sdbus::createSessionBusConnection()),
      m_desk(sdbus::createProxy(*m_connection, Controller::BUS_NAME, PathOf(Controller::BUS_NAME)))
{
}

ScreenAnswer DeskConnection::Ask(const Request& request)
{
    ScreenAnswer answer;
    m_desk->callMethod(Desk::ASK)
        .onInterface(Desk::INTERFACE)
        .withTimeout(m_TimeLeft())
        .withArguments(std::int32_t{request.UiId()}, request.SourceId(), OnTheBus(request))
        .storeResultsTo(answer.uiId, answer.sourceId, answer.kind, answer.button, answer.item, answer.data);
    return answer;
}

DeskConnection::Followed DeskConnection::Follow(const Request& progress, ProgressFeed& feed)
{
    FollowedProgress followed(*m_connection, *m_desk, progress, feed);
    const ScreenAnswer answer = followed.Run(m_TimeLeft());
    return {answer, followed.IsFinished()};
}

void DeskConnection::Tell(const Request& request)
{
    m_desk->callMethod(Desk::TELL)
        .onInterface(Desk::INTERFACE)
        .withTimeout(m_TimeLeft())
        .withArguments(OnTheBus(request));
}

DeskConnection::Menu DeskConnection::OpenMenu(const Request& request)
{
    Menu menu;
    m_desk->callMethod(Desk::OPEN_MENU)
        .onInterface(Desk::INTERFACE)
        .withTimeout(m_TimeLeft())
        .withArguments(OnTheBus(request))
        .storeResultsTo(menu.tasks, menu.positions);
    return menu;
}

std::chrono::microseconds DeskConnection::m_TimeLeft() const
{
    // The bus library takes 0 for its own default.
    return std::max(1us, std::chrono::duration_cast<std::chrono::microseconds>(m_deadline - Clock::now()));
}

Failure FailureOf(const sdbus::Error& error)
{
    if (error.getName() == TIMEOUT)
    {
        return {ExitStatus::TIMED_OUT, "nothing came back within the time-out"};
    }
    if (error.getName() == NOT_UTF8 || error.getName() == TOO_BIG)
    {
        return {ExitStatus::BAD_USAGE,
                "the bus carries UTF-8 texts, and less than 64 MiB in a list: " + error.getMessage()};
    }
    if (error.getName() == Desk::REFUSED)
    {
        return {ExitStatus::BAD_USAGE, "the application refused the request: " + error.getMessage()};
    }
    return {ExitStatus::UNAVAILABLE, (error.getMessage().empty() ? error.getName() : error.getMessage()) + HintOfTv()};
}

} // namespace veskar
