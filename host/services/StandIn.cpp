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
    : m_appId(appId), m_terminated(std::move(terminated)),
      m_object(sdbus::createObject(connection, Applications::PathOf(appId)))
{
    m_RegisterMethods();
    connection.requestName(m_appId);
    m_Say("stands ready");
}

void StandIn::m_RegisterMethods()
{
    m_object->registerMethod(Applications::appControl)
        .onInterface(Applications::interface)
        .withInputParamNames("request")
        .implementedAs([this](const RequestData& request) { m_Say(Applications::appControl + TextOf(request)); });
    for (const char* method : {"Pause", "Resume"})
    {
        m_object->registerMethod(method)
            .onInterface(Applications::interface)
            .implementedAs([this, method] { m_Say(method); });
    }
    m_object->registerMethod("Terminate")
        .onInterface(Applications::interface)
        .implementedAs(
            [this]
            {
                m_Say("Terminate");
                m_terminated();
            });
    m_object->finishRegistration();
}

void StandIn::m_Say(const std::string& what) const
{
    Print(m_appId + " " + what);
}
} // namespace veskar
