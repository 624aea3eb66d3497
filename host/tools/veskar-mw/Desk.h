/** veskar-mw's side of the bus: it sends a request to the daemon, which passes it on and returns the result. */
#pragma once

#include "DeskBus.h"
#include "ProgressFeed.h"
#include "Report.h"
#include "Request.h"

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <memory>

namespace veskar
{
RequestData OnTheBus(const Request& request);

/**
 * All operations together wait at most for the time given to the constructor. Each throws sdbus::Error when the request
 * cannot be delivered or the time is over.
 */
class DeskConnection
{
public:
    explicit DeskConnection(std::chrono::microseconds timeout);

    /** Asks for a screen and waits for its answer. */
    ScreenAnswer Ask(const Request& request);

    struct Followed
    {
        ScreenAnswer answer;
        /** It was closed because its feed had ended. */
        bool isFinished = false;
    };
    /** Asks for a progress that the feed moves on; see FollowedProgress. Each line starts the time again. */
    Followed Follow(const Request& progress, ProgressFeed& feed);
    /** Returns once the application has taken the request. */
    void Tell(const Request& request);

    struct Menu
    {
        Desk::Tasks tasks;
        Desk::Positions positions;
    };
    /** Opens a menu: what the context manager was asked for, and the position; none for a position not known. */
    Menu OpenMenu(const Request& request);

private:
    std::chrono::microseconds m_TimeLeft() const;

    std::chrono::steady_clock::time_point m_deadline;
    std::unique_ptr<sdbus::IConnection> m_connection;
    std::unique_ptr<sdbus::IProxy> m_desk;
};

/** What an error of the above means for the user. */
struct Failure
{
    int status;
    std::string text;
};
Failure FailureOf(const sdbus::Error& error);

} // namespace veskar
