#include "StandIn.h"

#include "Print.h"

#include <utility>

namespace veskar
{
namespace
{
std::string TextOf(const sdbus::Variant& value)
{
    if (value.containsValueOfType<std::string>())
    {
        return Quoted(value.get<std::string>());
    }
    if (!value.containsValueOfType<std::vector<std::string>>())
    {
        return "of type " + value.peekValueType();
    }
    std::string text = "[";
    for (const std::string& element : value.get<std::vector<std::string>>())
    {
        text += (text.size() > 1 ? ", " : "") + Quoted(element);
    }
    return text + "]";
}

std::string TextOf(const RequestData& request)
{
    std::string text;
    for (const auto& [key, value] : request)
    {
        text += " " + Quoted(key) + "=" + TextOf(value);
    }
    return text;
}

} // namespace

StandIn::StandIn(sdbus::IConnection& connection, const std::string& appId, std::function<void()> terminated)
    : m_appId(appId), m_terminated(std::move(terminated)), m_object(sdbus::createObject(connection, PathOf(appId)))
{
    m_RegisterMethods();
    connection.requestName(m_appId);
    m_Say("stands ready");
}

void StandIn::m_RegisterMethods()
{
    m_object->registerMethod(Applications::APP_CONTROL)
        .onInterface(Applications::INTERFACE)
        .withInputParamNames("request")
        .implementedAs([this](const RequestData& request) { m_Say(Applications::APP_CONTROL + TextOf(request)); });
    for (const char* method : {Applications::PAUSE, Applications::RESUME})
    {
        m_object->registerMethod(method)
            .onInterface(Applications::INTERFACE)
            .implementedAs([this, method] { m_Say(method); });
    }
    m_object->registerMethod(Applications::TERMINATE)
        .onInterface(Applications::INTERFACE)
        .implementedAs(
            [this]
            {
                m_Say(Applications::TERMINATE);
                m_terminated();
            });
    m_object->finishRegistration();
}

void StandIn::m_Say(const std::string& what) const
{
    Print(m_appId + " " + what);
}

} // namespace veskar
