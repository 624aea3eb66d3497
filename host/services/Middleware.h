/** The middleware's side of the application: requests go out through it, answers and menu positions come in. */
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
/** Everything happens on the thread that serves the connection. */
class Middleware
{
public:
    /** Puts the objects on the connection, which outlives this; the names are the caller's to own, afterwards. */
    explicit Middleware(sdbus::IConnection& connection);

    /** The context manager's side of a menu request. */
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
    /** The application's process, by the name that no other one ever has; empty while there is none. */
    std::string m_owner;
    /**
     * The menu requests that have no reply yet. Only the first one was sent: where a leaving process passes requests
     * on, their replies come through it, and nothing would tell which of several brought which position.
     */
    std::deque<std::pair<RequestData, Delivered>> m_menus;
    /**
     * What the menu request that was sent has brought so far. The application asks for the task first and replies last:
     * so what came since the last task came because of it, whoever else opened menus before.
     */
    Desk::Tasks m_tasks;
    Desk::Positions m_positions;
};

} // namespace veskar
