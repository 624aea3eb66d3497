/** The middleware's side of the application: requests go out through it, answers and menu positions come in. */
#pragma once

#include "DeskBus.h"
#include "MenuCallers.h"
#include "Screens.h"
#include "ServeOnce.h"

#include <functional>
#include <memory>
#include <string>

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

    /** When GiveUp is due; `never` while the application is there. */
    Clock::time_point Deadline() const { return m_deadline; }
    /** The application stayed away: no answer comes any more. */
    void GiveUp();

private:
    using Delivered = std::function<void(const sdbus::Error* refusal)>;

    void m_RegisterController();
    void m_RegisterDesk();
    void m_WatchNames();

    void m_Ask(Waiter::Result&& result, ScreenIds screen, const RequestData& request);
    void m_Tell(sdbus::Result<>&& result, const RequestData& request);
    void m_OpenMenu(sdbus::Result<>&& result, const RequestData& request);
    void m_SendResponse(const Answer& answer);
    void m_OpenMenuPosition(std::int32_t position);
    void m_OwnerChanged(const std::string& name, const std::string& oldOwner, const std::string& newOwner);

    void m_Forward(const RequestData& request, Delivered delivered);
    std::string m_Caller() const;
    template <typename... Args>
    void m_Signal(const std::string& client, const std::string& name, const Args&... args);

    std::unique_ptr<sdbus::IObject> m_object;
    std::unique_ptr<sdbus::IProxy> m_application;
    std::unique_ptr<sdbus::IProxy> m_bus;
    Screens m_screens;
    MenuCallers m_menuCallers;
    Clock::time_point m_deadline = never;
};
} // namespace veskar
