#include "HandOver.h"

#include <optional>

#include "Log.h"
#include "MainLoop.h"
#include "TvBus.h"

namespace veskar
{
namespace
{

constexpr const char* OWNER_KEY = "owner";

/** In milliseconds. A leaving process does nothing else, so one that takes longer hangs. */
constexpr double LONGEST_ANSWER = 2000;

/** Who has answered. */
using Answer = std::optional<std::string>;

void OnAnswer(void* data, const Eldbus_Message* reply, Eldbus_Pending*)
{
    const bool failed = reply == nullptr || ErrorOf(reply);
    *static_cast<Answer*>(data) = failed ? "" : eldbus_message_sender_get(reply);
    WakeMainLoop();
}

} // namespace

Leaving::Leaving(Eldbus_Connection* connection, const BusWatch& bus, const std::string& appId, Asked asked)
    : m_asked(std::move(asked)), m_name(connection, bus, Applications::LeavingNameOf(appId))
{
    // The library keeps pointers to these.
    static const Eldbus_Method methods[] = {{Applications::TAKE_OVER, nullptr, nullptr, s_OnTakeOver, 0}, {}};
    static const Eldbus_Service_Interface_Desc description = {
        Applications::LEAVING_INTERFACE, methods, nullptr, nullptr, nullptr, nullptr};
    const std::string path = PathOf(Applications::LeavingNameOf(appId));
    m_object.reset(eldbus_service_interface_register(connection, path.c_str(), &description));
    if (m_object)
    {
        eldbus_service_object_data_set(m_object.get(), OWNER_KEY, this);
    }
    m_name.RequestFromAny();
}

Leaving::~Leaving()
{
    m_name.Release();
}

Eldbus_Message* Leaving::s_OnTakeOver(const Eldbus_Service_Interface* object, const Eldbus_Message* call)
{
    static_cast<Leaving*>(eldbus_service_object_data_get(object, OWNER_KEY))->m_asked(eldbus_message_sender_get(call));
    return eldbus_message_method_return_new(call);
}

std::string TakeOver(Eldbus_Connection* connection, const BusWatch& bus, const std::string& appId)
{
    const std::string name = Applications::LeavingNameOf(appId);
    auto call = NewCall(name, PathOf(name), Applications::LEAVING_INTERFACE, Applications::TAKE_OVER);
    Answer answer;
    auto* sent = eldbus_connection_send(connection, call.release(), OnAnswer, &answer, LONGEST_ANSWER);
    if (sent == nullptr)
    {
        return "";
    }
    TurnMainLoopUntil([&] { return answer || bus.IsGone(); });
    if (!answer)
    {
        eldbus_pending_cancel(sent); // answers it with an error, here and now
    }
    return *answer;
}

} // namespace veskar
