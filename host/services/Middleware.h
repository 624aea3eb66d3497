/** The middleware: sends requests to the application and receives its answers and menu positions. */
#pragma once

#include "DeskBus.h"
#include "Screens.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace veskar
{
/** Only for the thread that serves the connection. */
class Middleware
{
public:
    /** Registers its objects on the connection, which must outlive this. The caller requests the names afterwards. */
    explicit Middleware(sdbus::IConnection& connection);

    /** Part of a menu request: the application asked the context manager for this task. */
    void TaskRequested(const std::string& task, const std::string& action);

private:
    using AnswerResult =
        sdbus::Result<std::int32_t, std::uint8_t, std::int32_t, std::uint8_t, std::uint8_t, std::string>;
    using MenuResult = sdbus::Result<Desk::Tasks, Desk::Positions>;
    using Delivered = std::function<void(const sdbus::Error* refusal)>;

    void m_RegisterController();
    void m_RegisterDesk();
    void m_WatchNames();

    void m_Ask(AnswerResult&& result, ScreenIds screen, const RequestData& request);
    void m_Tell(sdbus::Result<>&& result, const RequestData& request);
    void m_OpenMenu(MenuResult&& result, const RequestData& request);
    void m_SendResponse(const Answer& answer);
    void m_OpenMenuPosition(std::int32_t position);
    void m_OwnerChanged(const std::string& name, const std::string& oldOwner, const std::string& newOwner);

    void m_Forward(const RequestData& request, Delivered delivered);
    void m_ForwardNextMenu();
    void m_Send(const RequestData& request, Delivered delivered);
    std::string m_Caller() const;

    std::unique_ptr<sdbus::IObject> m_object;
    std::unique_ptr<sdbus::IProxy> m_application;
    std::unique_ptr<sdbus::IProxy> m_bus;
    Screens m_screens;
    /** The unique bus name of the application's process; empty while there is none. */
    std::string m_owner;
    /**
     * The menu requests that have no reply yet. Only the first of them has been sent: with several on their way it
     * would be unknown which of them opened which position, because a leaving process passes requests on to the next
     * one.
     */
    std::deque<std::pair<RequestData, Delivered>> m_menus;
    /**
     * The results of the menu request that was sent, up to now. The application first asks for the task and replies
     * last, so everything since the last task belongs to that request.
     */
    Desk::Tasks m_tasks;
    Desk::Positions m_positions;
};

} // namespace veskar
