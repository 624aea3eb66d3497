/** veskar-mw's side of the bus: a request goes to the daemon, which sends it on and hands back what comes of it. */
#pragma once

#include "Report.h"
#include "Request.h"

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <functional>
#include <memory>

namespace veskar
{
/**
 * Every operation waits at most the time given with the construction, all of them together; each throws sdbus::Error
 * when the request goes nowhere or the time is over.
 */
class DeskConnection
{
public:
    explicit DeskConnection(std::chrono::microseconds timeout);

    /** Asks for a screen and waits for its answer. */
    ScreenAnswer Ask(const Request& request);
    /** Returns once the application has taken the request. */
    void Tell(const Request& request);

    using TaskRequested = std::function<void(const std::string& task, const std::string& action)>;
    /** Opens a menu, reports the task that the context manager was asked for, and waits for the position. */
    int OpenMenu(const Request& request, const TaskRequested& taskRequested);

private:
    std::chrono::microseconds m_TimeLeft() const;

    std::chrono::steady_clock::time_point m_deadline;
    std::unique_ptr<sdbus::IConnection> m_connection;
    std::unique_ptr<sdbus::IProxy> m_desk;
};

/** What an error of the above means to whoever asked. */
struct Failure
{
    int status;
    std::string text;
};
Failure FailureOf(const sdbus::Error& error);
} // namespace veskar
