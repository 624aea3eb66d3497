#include "FollowedProgress.h"

#include "Desk.h"
#include "ServeOnce.h"

namespace veskar
{
namespace
{
constexpr const char* TIMEOUT = "org.freedesktop.DBus.Error.Timeout";
constexpr std::chrono::microseconds FOR_EVER = std::chrono::hours{24 * 365};
constexpr auto CLOSE = "ui_type_close";
constexpr std::uint8_t NORMAL_SOURCE = 255;
constexpr auto BUTTONS = "ui_param_buttons";

} // namespace

FollowedProgress::FollowedProgress(sdbus::IConnection& connection, sdbus::IProxy& desk, const Request& progress,
                                   ProgressFeed& feed)
    : m_connection(connection), m_desk(desk), m_progress(progress), m_feed(feed)
{
}

ScreenAnswer FollowedProgress::Run(std::chrono::microseconds timeout)
{
    m_Ask();
    auto deadline = Clock::now() + timeout;
    while (!m_trouble && !m_IsOver())
    {
        if (m_feed.Advance(m_progress))
        {
            m_hasChanged = true;
            deadline = Clock::now() + timeout;
        }
        if (!m_isSending)
        {
            m_SendNext();
        }
        if (!ServeOnce(m_connection, deadline, m_feed.Descriptor()))
        {
            throw sdbus::Error{TIMEOUT, "neither a line nor an answer"};
        }
    }
    if (m_trouble)
    {
        throw sdbus::Error{*m_trouble};
    }
    return *m_answer;
}

void FollowedProgress::m_Ask()
{
    m_desk.callMethodAsync(Desk::ASK)
        .onInterface(Desk::INTERFACE)
        .withTimeout(FOR_EVER)
        .withArguments(std::int32_t{m_progress.UiId()}, m_progress.SourceId(), OnTheBus(m_progress))
        .uponReplyInvoke(
            [this](const sdbus::Error* error, std::int32_t uiId, std::uint8_t sourceId, std::int32_t kind,
                   std::uint8_t button, std::uint8_t item, const std::string& data)
            {
                if (error != nullptr)
                {
                    m_trouble = *error;
                    return;
                }
                m_answer = ScreenAnswer{uiId, sourceId, kind, button, item, data};
                m_isShownAgain = m_isSending && !m_isFinished;
            });
}

void FollowedProgress::m_SendNext()
{
    if (m_isShownAgain)
    {
        m_isShownAgain = false;
        m_Close();
        return;
    }
    if (m_answer)
    {
        return;
    }
    if (m_hasChanged)
    {
        m_hasChanged = false;
        m_Tell(m_progress);
        return;
    }
    if (m_feed.HasEnded() && !m_isFinished && m_progress.List(BUTTONS).empty())
    {
        m_isFinished = true;
        m_Close();
    }
}

void FollowedProgress::m_Tell(const Request& request)
{
    m_isSending = true;
    m_desk.callMethodAsync(Desk::TELL)
        .onInterface(Desk::INTERFACE)
        .withTimeout(FOR_EVER)
        .withArguments(OnTheBus(request))
        .uponReplyInvoke(
            [this](const sdbus::Error* error)
            {
                m_isSending = false;
                if (error != nullptr)
                {
                    m_trouble = *error;
                }
            });
}

void FollowedProgress::m_Close()
{
    m_Tell(Request::Screen(CLOSE).SetIds(m_progress.UiId(), NORMAL_SOURCE));
}

} // namespace veskar
