#include "ApplicationObject.h"

#include "AppControlCodec.h"
#include "TvBus.h"

namespace veskar
{
namespace
{

constexpr const char* OWNER_KEY = "owner";

ApplicationObject* OwnerOf(const Eldbus_Service_Interface* object)
{
    return static_cast<ApplicationObject*>(eldbus_service_object_data_get(object, OWNER_KEY));
}

} // namespace

ApplicationObject::ApplicationObject(Eldbus_Connection* connection, const std::string& appId, Received received)
    : m_received(std::move(received))
{
    // The library keeps pointers to these.
    static const Eldbus_Arg_Info requestArguments[] = {{"a{sv}", "request"}, {nullptr, nullptr}};
    static const Eldbus_Method methods[] = {
        {Applications::APP_CONTROL, requestArguments, nullptr, s_OnAppControl, 0},
        {Applications::PAUSE, nullptr, nullptr, s_OnCall<LifecycleKind::Pause>, 0},
        {Applications::RESUME, nullptr, nullptr, s_OnCall<LifecycleKind::Resume>, 0},
        {Applications::TERMINATE, nullptr, nullptr, s_OnCall<LifecycleKind::Terminate>, 0},
        {},
    };
    static const Eldbus_Service_Interface_Desc description = {
        Applications::INTERFACE, methods, nullptr, nullptr, nullptr, nullptr};
    m_object.reset(eldbus_service_interface_register(connection, PathOf(appId).c_str(), &description));
    if (m_object)
    {
        eldbus_service_object_data_set(m_object.get(), OWNER_KEY, this);
    }
}

Eldbus_Message* ApplicationObject::s_OnAppControl(const Eldbus_Service_Interface* object, const Eldbus_Message* call)
{
    auto request = std::make_unique<app_control_s>();
    if (const auto refusal = DecodeAppControl(call, *request))
    {
        return eldbus_message_error_new(call, REFUSED_ERROR, refusal->c_str());
    }
    OwnerOf(object)->m_received({LifecycleKind::Request, std::move(request), ShareMessage(call)});
    return nullptr;
}

template <LifecycleKind Kind>
Eldbus_Message* ApplicationObject::s_OnCall(const Eldbus_Service_Interface* object, const Eldbus_Message* call)
{
    OwnerOf(object)->m_received({Kind, nullptr, ShareMessage(call)});
    return nullptr;
}

} // namespace veskar
