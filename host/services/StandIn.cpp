#include "StandIn.h"

#include "Print.h"

#include <utility>

namespace VESKAR_DESK
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
    : m_object(sdbus::createObject(connection, Application::PathOf(appId)))
{
    m_object->registerMethod(Application::appControl)
        .onInterface(Application::interface)
        .withInputParamNames("request")
        .implementedAs([appId](const RequestData& request)
                       { Print(appId + " " + Application::appControl + TextOf(request)); });
    for (const std::string method : {"Pause", "Resume"})
    {
        m_object->registerMethod(method)
            .onInterface(Application::interface)
            .implementedAs([appId, method] { Print(appId + " " + method); });
    }
    m_object->registerMethod("Terminate")
        .onInterface(Application::interface)
        .implementedAs(
            [appId, terminated = std::move(terminated)]
            {
                Print(appId + " Terminate");
                terminated();
            });
    m_object->finishRegistration();
    connection.requestName(appId);
    Print(appId + " stands ready");
}
} // namespace VESKAR_DESK
