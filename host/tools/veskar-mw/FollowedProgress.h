/** A progress that moves on as a feed says, until it is answered. */
#pragma once

#include "ProgressFeed.h"
#include "Report.h"
#include "Request.h"

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>
#include <optional>

namespace veskar
{
class FollowedProgress
{
public:
    /** Everything must outlive this object; `desk` is the daemon's object on the connection. */
    FollowedProgress(sdbus::IConnection& connection, sdbus::IProxy& desk, const Request& progress, ProgressFeed& feed);

    /**
     * Shows the progress and returns its answer. Where lines come faster than the application draws, the newest counts.
     * After the last line a progress without a button is closed. Throws sdbus::Error: a request cannot be delivered, or
     * for `timeout` there was neither a line nor an answer.
     */
    ScreenAnswer Run(std::chrono::microseconds timeout);

    /** Whether it was closed because the feed has ended. */
    bool IsFinished() const { return m_isFinished; }

private:
    bool m_IsOver() const { return m_answer && !m_isSending && !m_isShownAgain; }
    void m_Ask();
    void m_SendNext();
    void m_Tell(const Request& request);
    void m_Close();

    sdbus::IConnection& m_connection;
    sdbus::IProxy& m_desk;
    Request m_progress;
    ProgressFeed& m_feed;
    std::optional<ScreenAnswer> m_answer;
    std::optional<sdbus::Error> m_trouble;
    bool m_hasChanged = false;
    /** A request has no reply yet. */
    bool m_isSending = false;
    bool m_isFinished = false;
    /** A change met the answer on its way: the application has made a screen of it that nobody wants. */
    bool m_isShownAgain = false;
};

} // namespace veskar
