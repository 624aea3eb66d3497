#include "Middleware.h"

#include "Print.h"

#include <sstream>
#include <utility>

namespace veskar
{
namespace
{
/**
 * A request that reached the application on its way out is passed on to its next process, which the bus starts once
 * the name is free. So the name without an owner means nothing yet; a slow machine starts the next one within this.
 */
constexpr std::chrono::seconds s_restartTime{5};

/** What the bus says of a name that nobody owns and nobody can be started for. */
bool IsNoApplication(const std::string& errorName)
{
    return errorName == "org.freedesktop.DBus.Error.ServiceUnknown" ||
           errorName == "org.freedesktop.DBus.Error.NameHasNoOwner" ||
           errorName.rfind("org.freedesktop.DBus.Error.Spawn.", 0) == 0;
}

/** The desk's error for what came back instead of the application's reply. */
sdbus::Error DeskError(const sdbus::Error& error)
{
    if (IsNoApplication(error.getName()))
    {
        return sdbus::Error{Desk::noApplication, error.getMessage()};
    }
    if (error.getName() == "org.freedesktop.DBus.Error.NoReply" ||
        error.getName() == "org.freedesktop.DBus.Error.Timeout")
    {
        return sdbus::Error{Desk::gone, "the application did not take the request: " + error.getMessage()};
    }
    return sdbus::Error{Desk::refused, error.getMessage() + " (" + error.getName() + ")"};
}

std::string NameOf(const ScreenIds& screen)
{
    return "ui " + std::to_string(screen.uiId) + ", source " + std::to_string(screen.sourceId);
}

/** The kind of request, as far as one line tells. */
std::string NameOf(const RequestData& request)
{
    for (const char* key : {"signal_tvservice_key", "menu_pos_key", "signal_type_key"})
    {
        const auto found = request.find(key);
        if (found != request.end() && found->second.containsValueOfType<std::string>())
        {
            return Quoted(found->second.get<std::string>());
        }
    }
    return "of no kind";
}

/** The library's results can only be moved, and a callback must be copyable. */
std::shared_ptr<sdbus::Result<>> Share(sdbus::Result<>&& result)
{
    return std::make_shared<sdbus::Result<>>(std::move(result));
}

void Reply(const sdbus::Result<>& result, const sdbus::Error* refusal)
{
    if (refusal != nullptr)
    {
        result.returnError(*refusal);
        return;
    }
    result.returnResults();
}
} // namespace

Middleware::Middleware(sdbus::IConnection& connection)
    : m_object(sdbus::createObject(connection, Controller::path)),
      m_application(
          sdbus::createProxy(connection, Applications::dialogues, Applications::PathOf(Applications::dialogues))),
      m_bus(sdbus::createProxy(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus"))
{
    m_RegisterController();
    m_RegisterDesk();
    m_object->finishRegistration();
    m_WatchNames();
}

void Middleware::TaskRequested(const std::string& task, const std::string& action)
{
    const std::string client = m_menuCallers.NextTurn();
    if (!client.empty())
    {
        m_Signal(client, Desk::taskRequested, task, action);
    }
}

void Middleware::GiveUp()
{
    m_deadline = never;
    m_screens.FailDelivered(sdbus::Error{Desk::gone, "the application went away without an answer"});
}

void Middleware::m_RegisterController()
{
    m_object->registerMethod(Controller::sendResponse)
        .onInterface(Controller::interface)
        .withInputParamNames("uiId", "sourceId", "kind", "button", "item", "data")
        .implementedAs(
            [this](std::int32_t uiId, std::uint8_t sourceId, std::int32_t kind, std::uint8_t button, std::uint8_t item,
                   const std::string& data) {
                m_SendResponse({{uiId, sourceId}, kind, button, item, data});
            });
    m_object->registerMethod(Controller::openMenuPosition)
        .onInterface(Controller::interface)
        .withInputParamNames("position")
        .implementedAs([this](std::int32_t position) { m_OpenMenuPosition(position); });
}

void Middleware::m_RegisterDesk()
{
    m_object->registerMethod(Desk::ask)
        .onInterface(Desk::interface)
        .withInputParamNames("uiId", "sourceId", "request")
        .withOutputParamNames("uiId", "sourceId", "kind", "button", "item", "data")
        .implementedAs(
            [this](Waiter::Result&& result, std::int32_t uiId, std::uint8_t sourceId, const RequestData& request) {
                m_Ask(std::move(result), {uiId, sourceId}, request);
            });
    m_object->registerMethod(Desk::tell)
        .onInterface(Desk::interface)
        .withInputParamNames("request")
        .implementedAs([this](sdbus::Result<>&& result, const RequestData& request)
                       { m_Tell(std::move(result), request); });
    m_object->registerMethod(Desk::openMenu)
        .onInterface(Desk::interface)
        .withInputParamNames("request")
        .implementedAs([this](sdbus::Result<>&& result, const RequestData& request)
                       { m_OpenMenu(std::move(result), request); });
    m_object->registerSignal(Desk::taskRequested)
        .onInterface(Desk::interface)
        .withParameters<std::string, std::string>("task", "action");
    m_object->registerSignal(Desk::menuPositionOpened)
        .onInterface(Desk::interface)
        .withParameters<std::int32_t>("position");
}

void Middleware::m_WatchNames()
{
    m_bus->uponSignal("NameOwnerChanged")
        .onInterface("org.freedesktop.DBus")
        .call([this](const std::string& name, const std::string& oldOwner, const std::string& newOwner)
              { m_OwnerChanged(name, oldOwner, newOwner); });
    m_bus->finishRegistration();
}

void Middleware::m_Ask(Waiter::Result&& result, ScreenIds screen, const RequestData& request)
{
    Print("request " + NameOf(request) + ", " + NameOf(screen) + ", waits for the answer");
    const auto added = m_screens.Add(m_Caller(), screen, std::move(result));
    m_Forward(request,
              [this, added](const sdbus::Error* refusal)
              {
                  const auto waiter = added.lock();
                  if (waiter == nullptr)
                  {
                      return; // Its client is gone.
                  }
                  if (refusal != nullptr)
                  {
                      m_screens.Fail(waiter, *refusal);
                      return;
                  }
                  waiter->delivered = true;
              });
}

void Middleware::m_Tell(sdbus::Result<>&& result, const RequestData& request)
{
    Print("request " + NameOf(request));
    const auto reply = Share(std::move(result));
    m_Forward(request, [reply](const sdbus::Error* refusal) { Reply(*reply, refusal); });
}

void Middleware::m_OpenMenu(sdbus::Result<>&& result, const RequestData& request)
{
    Print("menu request " + NameOf(request));
    const std::string client = m_Caller();
    m_menuCallers.Add(client);
    const auto reply = Share(std::move(result));
    m_Forward(request,
              [this, client, reply](const sdbus::Error* refusal)
              {
                  if (refusal != nullptr)
                  {
                      m_menuCallers.Remove(client);
                  }
                  Reply(*reply, refusal);
              });
}

void Middleware::m_SendResponse(const Answer& answer)
{
    const std::size_t waiters = m_screens.Answered(answer);
    std::ostringstream line;
    line << Controller::sendResponse << " " << NameOf(answer.screen) << ", kind " << answer.kind << ", button "
         << int{answer.button} << ", item " << int{answer.item} << ", data " << Secret(answer.data) << "; "
         << (waiters == 0 ? "nobody" : std::to_string(waiters)) << " waited for it";
    Print(line.str());
}

void Middleware::m_OpenMenuPosition(std::int32_t position)
{
    Print(Controller::openMenuPosition + " " + std::to_string(position));
    const std::string client = m_menuCallers.EndTurn();
    if (!client.empty())
    {
        m_Signal(client, Desk::menuPositionOpened, position);
    }
}

void Middleware::m_OwnerChanged(const std::string& name, const std::string& oldOwner, const std::string& newOwner)
{
    if (name == Applications::dialogues)
    {
        Print(name + (newOwner.empty() ? " left the bus" : " is on the bus"));
        m_deadline = never;
        if (newOwner.empty())
        {
            m_screens.ProcessLeft();
            m_deadline = Clock::now() + s_restartTime;
        }
        return;
    }
    if (name == oldOwner && newOwner.empty())
    {
        m_screens.RemoveClient(name);
        m_menuCallers.Remove(name);
    }
}

void Middleware::m_Forward(const RequestData& request, Delivered delivered)
{
    m_application->callMethodAsync(Applications::appControl)
        .onInterface(Applications::interface)
        .withArguments(request)
        .uponReplyInvoke(
            [delivered = std::move(delivered)](const sdbus::Error* error)
            {
                if (error == nullptr)
                {
                    delivered(nullptr);
                    return;
                }
                const sdbus::Error refusal = DeskError(*error);
                Print("the request was not taken: " + std::string{refusal.what()});
                delivered(&refusal);
            });
}

std::string Middleware::m_Caller() const
{
    return m_object->getCurrentlyProcessedMessage()->getSender();
}

template <typename... Args>
void Middleware::m_Signal(const std::string& client, const std::string& name, const Args&... args)
{
    auto signal = m_object->createSignal(Desk::interface, name);
    signal.setDestination(client);
    (signal << ... << args);
    m_object->emitSignal(signal);
}
} // namespace veskar
