#include "Middleware.h"

#include "Print.h"

#include <optional>
#include <sstream>
#include <utility>

namespace veskar
{
namespace
{
/** True for an application that cannot run, and for the bus's errors about a name that nobody owns. */
bool IsNoApplication(const std::string& errorName)
{
    return errorName == Applications::CANNOT_RUN_ERROR || errorName == "org.freedesktop.DBus.Error.ServiceUnknown" ||
           errorName == "org.freedesktop.DBus.Error.NameHasNoOwner" ||
           errorName.rfind("org.freedesktop.DBus.Error.Spawn.", 0) == 0;
}

/** Translates the error that came instead of the application's reply into one of the desk's errors. */
sdbus::Error DeskError(const sdbus::Error& error)
{
    if (IsNoApplication(error.getName()))
    {
        return sdbus::Error{Desk::NO_APPLICATION, error.getMessage()};
    }
    if (error.getName() == "org.freedesktop.DBus.Error.NoReply" ||
        error.getName() == "org.freedesktop.DBus.Error.Timeout")
    {
        return sdbus::Error{Desk::GONE, "the application did not take the request: " + error.getMessage()};
    }
    return sdbus::Error{Desk::REFUSED, error.getMessage() + " (" + error.getName() + ")"};
}

std::string NameOf(const ScreenIds& screen)
{
    return "ui " + std::to_string(screen.uiId) + ", source " + std::to_string(screen.sourceId);
}

std::optional<std::string> TextOf(const RequestData& request, const char* key)
{
    const auto found = request.find(key);
    const bool isText = found != request.end() && found->second.containsValueOfType<std::string>();
    return isText ? std::optional{found->second.get<std::string>()} : std::nullopt;
}

/** The kind of request, for a log line. */
std::string NameOf(const RequestData& request)
{
    for (const char* key : {"signal_tvservice_key", "menu_pos_key", "signal_type_key"})
    {
        if (const auto text = TextOf(request, key))
        {
            return Quoted(*text);
        }
    }
    return "of no kind";
}

bool IsMenuRequest(const RequestData& request)
{
    return TextOf(request, "signal_type_key") == "signal_menu_pos";
}

/** The library's results can only be moved, but a callback must be copyable. */
template <typename... Results>
std::shared_ptr<sdbus::Result<Results...>> Share(sdbus::Result<Results...>&& result)
{
    return std::make_shared<sdbus::Result<Results...>>(std::move(result));
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
    : m_object(sdbus::createObject(connection, PathOf(Controller::BUS_NAME))),
      m_application(sdbus::createProxy(connection, Applications::DIALOGUES, PathOf(Applications::DIALOGUES))),
      m_bus(sdbus::createProxy(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus"))
{
    m_RegisterController();
    m_RegisterDesk();
    m_object->finishRegistration();
    m_WatchNames();
}

void Middleware::TaskRequested(const std::string& task, const std::string& action)
{
    m_tasks = {{task, action}};
    m_positions.clear();
}

void Middleware::m_RegisterController()
{
    m_object->registerMethod(Controller::SEND_RESPONSE)
        .onInterface(Controller::INTERFACE)
        .withInputParamNames("uiId", "sourceId", "kind", "button", "item", "data")
        .implementedAs(
            [this](std::int32_t uiId, std::uint8_t sourceId, std::int32_t kind, std::uint8_t button, std::uint8_t item,
                   const std::string& data) {
                m_SendResponse({{uiId, sourceId}, kind, button, item, data});
            });
    m_object->registerMethod(Controller::OPEN_MENU_POSITION)
        .onInterface(Controller::INTERFACE)
        .withInputParamNames("position")
        .implementedAs([this](std::int32_t position) { m_OpenMenuPosition(position); });
}

void Middleware::m_RegisterDesk()
{
    m_object->registerMethod(Desk::ASK)
        .onInterface(Desk::INTERFACE)
        .withInputParamNames("uiId", "sourceId", "request")
        .withOutputParamNames("uiId", "sourceId", "kind", "button", "item", "data")
        .implementedAs(
            [this](AnswerResult&& result, std::int32_t uiId, std::uint8_t sourceId, const RequestData& request) {
                m_Ask(std::move(result), {uiId, sourceId}, request);
            });
    m_object->registerMethod(Desk::TELL)
        .onInterface(Desk::INTERFACE)
        .withInputParamNames("request")
        .implementedAs([this](sdbus::Result<>&& result, const RequestData& request)
                       { m_Tell(std::move(result), request); });
    m_object->registerMethod(Desk::OPEN_MENU)
        .onInterface(Desk::INTERFACE)
        .withInputParamNames("request")
        .withOutputParamNames("tasks", "positions")
        .implementedAs([this](MenuResult&& result, const RequestData& request)
                       { m_OpenMenu(std::move(result), request); });
}

void Middleware::m_WatchNames()
{
    m_bus->uponSignal("NameOwnerChanged")
        .onInterface("org.freedesktop.DBus")
        .call([this](const std::string& name, const std::string& oldOwner, const std::string& newOwner)
              { m_OwnerChanged(name, oldOwner, newOwner); });
    m_bus->finishRegistration();
    try
    {
        m_bus->callMethod("GetNameOwner")
            .onInterface("org.freedesktop.DBus")
            .withArguments(Applications::DIALOGUES)
            .storeResultsTo(m_owner);
    }
    catch (const sdbus::Error&)
    {
        m_owner.clear(); // it is not running
    }
}

void Middleware::m_Ask(AnswerResult&& result, ScreenIds screen, const RequestData& request)
{
    Print("request " + NameOf(request) + ", " + NameOf(screen) + ", waits for the answer");
    const auto reply = Share(std::move(result));
    const auto added = m_screens.Add(m_Caller(), screen,
                                     {[reply](const Answer& answer)
                                      {
                                          reply->returnResults(answer.screen.uiId, answer.screen.sourceId, answer.kind,
                                                               answer.button, answer.item, answer.data);
                                      },
                                      [reply](const sdbus::Error& error)
                                      {
                                          reply->returnError(error);
                                      }});
    m_Forward(request,
              [this, added](const sdbus::Error* refusal)
              {
                  const auto waiter = added.lock();
                  if (waiter == nullptr)
                  {
                      return; // its client has left the bus
                  }
                  if (refusal != nullptr)
                  {
                      m_screens.Fail(waiter, *refusal);
                      return;
                  }
                  // Right also if a leaving process passed the request on: it replies only after the next process has.
                  m_screens.Delivered(waiter, m_owner);
              });
}

void Middleware::m_Tell(sdbus::Result<>&& result, const RequestData& request)
{
    Print("request " + NameOf(request));
    const auto reply = Share(std::move(result));
    m_Forward(request, [reply](const sdbus::Error* refusal) { Reply(*reply, refusal); });
}

void Middleware::m_OpenMenu(MenuResult&& result, const RequestData& request)
{
    Print("menu request " + NameOf(request));
    const auto reply = Share(std::move(result));
    m_Forward(request,
              [this, reply](const sdbus::Error* refusal)
              {
                  if (refusal != nullptr)
                  {
                      reply->returnError(*refusal);
                      return;
                  }
                  reply->returnResults(m_tasks, m_positions);
              });
}

void Middleware::m_SendResponse(const Answer& answer)
{
    const std::size_t waiters = m_screens.Answered(answer, m_Caller());
    std::ostringstream line;
    line << Controller::SEND_RESPONSE << " " << NameOf(answer.screen) << ", kind " << answer.kind << ", button "
         << int{answer.button} << ", item " << int{answer.item} << ", data " << Secret(answer.data) << "; "
         << (waiters == 0 ? "nobody" : std::to_string(waiters)) << " waited for it";
    Print(line.str());
}

void Middleware::m_OpenMenuPosition(std::int32_t position)
{
    Print(std::string(Controller::OPEN_MENU_POSITION) + " " + std::to_string(position));
    m_positions = {position};
}

void Middleware::m_OwnerChanged(const std::string& name, const std::string& oldOwner, const std::string& newOwner)
{
    if (name == Applications::DIALOGUES)
    {
        Print(name + (newOwner.empty() ? " left the bus" : " is on the bus"));
        m_owner = newOwner;
        if (!oldOwner.empty())
        {
            m_screens.ProcessLeft();
        }
        if (!newOwner.empty())
        {
            m_screens.ProcessCame(newOwner);
        }
        return;
    }
    if (name == oldOwner && newOwner.empty())
    {
        m_screens.RemoveClient(name);
        if (const auto waiters = m_screens.ProcessEnded(name))
        {
            Print("the application ended without an answer, for which " + std::to_string(waiters) + " waited");
        }
    }
}

void Middleware::m_Forward(const RequestData& request, Delivered delivered)
{
    if (!IsMenuRequest(request))
    {
        m_Send(request, std::move(delivered));
        return;
    }
    m_menus.emplace_back(request, std::move(delivered));
    if (m_menus.size() == 1)
    {
        m_ForwardNextMenu();
    }
}

void Middleware::m_ForwardNextMenu()
{
    m_tasks.clear();
    m_positions.clear();
    m_Send(m_menus.front().first,
           [this](const sdbus::Error* refusal)
           {
               m_menus.front().second(refusal);
               m_menus.pop_front();
               if (!m_menus.empty())
               {
                   m_ForwardNextMenu();
               }
           });
}

void Middleware::m_Send(const RequestData& request, Delivered delivered)
{
    m_application->callMethodAsync(Applications::APP_CONTROL)
        .onInterface(Applications::INTERFACE)
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

} // namespace veskar
