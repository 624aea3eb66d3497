#include "ScreenObject.h"

#include "BusName.h"
#include "TvBus.h"

#include <string_view>

namespace veskar
{
namespace
{

enum Signal : unsigned
{
    SHOWN,
    CLOSED
};

unsigned char SourceOf(const OwnScreen::Request& screen)
{
    return static_cast<unsigned char>(screen.sourceId);
}

const char* AsBusText(const std::string& text)
{
    return IsBusText(text) ? text.c_str() : "";
}

Eina_Bool AppendKeys(Eldbus_Message_Iter* to)
{
    Eldbus_Message_Iter* keys = eldbus_message_iter_container_new(to, 'a', "s");
    if (keys == nullptr)
    {
        return EINA_FALSE;
    }
    for (const std::string& key : OwnScreen::Instance().HeldKeys())
    {
        eldbus_message_iter_basic_append(keys, 's', AsBusText(key));
    }
    return eldbus_message_iter_container_close(to, keys);
}

Eina_Bool GetProperty(const Eldbus_Service_Interface* /*object*/, const char* property, Eldbus_Message_Iter* value,
                      const Eldbus_Message* /*call*/, Eldbus_Message** /*error*/)
{
    const OwnScreen& own = OwnScreen::Instance();
    const OwnScreen::Request screen = own.Shown() != nullptr ? *own.Shown() : OwnScreen::Request();
    const std::string_view name = property;
    if (name == Applications::UI_ID)
    {
        return eldbus_message_iter_basic_append(value, 'i', screen.uiId);
    }
    if (name == "SourceId")
    {
        return eldbus_message_iter_basic_append(value, 'y', SourceOf(screen));
    }
    if (name == "HeldKeys")
    {
        return AppendKeys(value);
    }
    const std::string& text = name == "Kind" ? screen.kind : name == "Title" ? screen.title : own.Text();
    return eldbus_message_iter_basic_append(value, 's', AsBusText(text));
}

// The library keeps pointers to these.
constexpr unsigned TELLS_CHANGES = 0;
const Eldbus_Property PROPERTIES[] = {
    {Applications::UI_ID, "i", GetProperty, nullptr, TELLS_CHANGES},
    {"SourceId", "y", GetProperty, nullptr, TELLS_CHANGES},
    {"Kind", "s", GetProperty, nullptr, TELLS_CHANGES},
    {"Title", "s", GetProperty, nullptr, TELLS_CHANGES},
    {Applications::TEXT, "s", GetProperty, nullptr, TELLS_CHANGES},
    {"HeldKeys", "as", GetProperty, nullptr, TELLS_CHANGES},
    {},
};
const Eldbus_Arg_Info SHOWN_ARGUMENTS[] = {
    {"i", "ui_id"}, {"y", "source_id"}, {"s", "kind"}, {"s", "title"}, {nullptr, nullptr}};
const Eldbus_Arg_Info CLOSED_ARGUMENTS[] = {{"i", "ui_id"}, {"y", "source_id"}, {nullptr, nullptr}};
const Eldbus_Signal SIGNALS[] = {
    {Applications::SHOWN, SHOWN_ARGUMENTS, 0}, {Applications::CLOSED, CLOSED_ARGUMENTS, 0}, {}};
const Eldbus_Service_Interface_Desc DESCRIPTION = {
    Applications::SCREEN_INTERFACE, nullptr, SIGNALS, PROPERTIES, nullptr, nullptr};

} // namespace

ScreenObject::ScreenObject(Eldbus_Connection* connection, const std::string& appId)
    : m_object(eldbus_service_interface_register(connection, PathOf(appId).c_str(), &DESCRIPTION))
{
    OwnScreen::Instance().SetAudience(this);
}

ScreenObject::~ScreenObject()
{
    OwnScreen::Instance().SetAudience(nullptr);
}

void ScreenObject::Shown(const OwnScreen::Request& screen)
{
    eldbus_service_signal_emit(m_object.get(), SHOWN, screen.uiId, SourceOf(screen), AsBusText(screen.kind),
                               AsBusText(screen.title));
    m_TellProperties();
}

void ScreenObject::Closed(const OwnScreen::Request& screen)
{
    eldbus_service_signal_emit(m_object.get(), CLOSED, screen.uiId, SourceOf(screen));
    m_TellProperties();
}

void ScreenObject::m_TellProperties()
{
    for (const Eldbus_Property* property = PROPERTIES; property->name != nullptr; ++property)
    {
        eldbus_service_property_changed(m_object.get(), property->name);
    }
}

} // namespace veskar
