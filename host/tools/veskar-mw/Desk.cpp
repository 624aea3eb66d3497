#include "Desk.h"

#include "ServeOnce.h"

#include <algorithm>

namespace veskar
{
namespace
{
using namespace std::chrono_literals;

const std::string s_timeout = "org.freedesktop.DBus.Error.Timeout";
const std::string s_notUtf8 = "org.freedesktop.DBus.Error.InvalidArgs";
const std::string s_tooBig = "org.freedesktop.DBus.Error.InconsistentMessage";

RequestData OnTheBus(const Request& request)
{
    RequestData data;
    for (const auto& [key, value] : request.Values())
    {
        data.emplace(key, std::visit([](const auto& held) { return sdbus::Variant{held}; }, value));
    }
    return data;
}
} // namespace

DeskConnection::DeskConnection(std::chrono::microseconds timeout)
    : m_deadline(Clock::now() + timeout), m_connection(sdbus::createSessionBusConnection()),
      m_desk(sdbus::createProxy(*m_connection, Controller::busName, Controller::path))
{
}

ScreenAnswer DeskConnection::Ask(const Request& request)
{
    ScreenAnswer answer;
    m_desk->callMethod(Desk::ask)
        .onInterface(Desk::interface)
        .withTimeout(m_TimeLeft())
        .withArguments(std::int32_t{request.UiId()}, request.SourceId(), OnTheBus(request))
        .storeResultsTo(answer.uiId, answer.sourceId, answer.kind, answer.button, answer.item, answer.data);
    return answer;
}

void DeskConnection::Tell(const Request& request)
{
    m_desk->callMethod(Desk::tell)
        .onInterface(Desk::interface)
        .withTimeout(m_TimeLeft())
        .withArguments(OnTheBus(request));
}

DeskConnection::Menu DeskConnection::OpenMenu(const Request& request)
{
    Menu menu;
    m_desk->callMethod(Desk::openMenu)
        .onInterface(Desk::interface)
        .withTimeout(m_TimeLeft())
        .withArguments(OnTheBus(request))
        .storeResultsTo(menu.tasks, menu.positions);
    return menu;
}

std::chrono::microseconds DeskConnection::m_TimeLeft() const
{
    // To the bus library 0 means its own default.
    return std::max(1us, std::chrono::duration_cast<std::chrono::microseconds>(m_deadline - Clock::now()));
}

Failure FailureOf(const sdbus::Error& error)
{
    if (error.getName() == s_timeout)
    {
        return {ExitStatus::timedOut, "nothing came back within the time-out"};
    }
    if (error.getName() == s_notUtf8 || error.getName() == s_tooBig)
    {
        return {ExitStatus::badUsage,
                "the bus carries UTF-8 texts, and less than 64 MiB in a list: " + error.getMessage()};
    }
    if (error.getName() == Desk::refused)
    {
        return {ExitStatus::badUsage, "the application refused the request: " + error.getMessage()};
    }
    return {ExitStatus::unavailable, error.getMessage().empty() ? error.getName() : error.getMessage()};
}
} // namespace veskar
