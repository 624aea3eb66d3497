#include "BusName.h"

#include <cstdlib>

#include <dbus/dbus.h>

#include "TvBus.h"

namespace veskar
{

bool IsApplicationId(const char* id)
{
    return id != nullptr && id[0] != ':' && dbus_validate_bus_name(id, nullptr);
}

std::string OwnApplicationId()
{
    const char* id = getenv("VESKAR_APP_ID");
    return id != nullptr && *id != '\0' ? id : Applications::DIALOGUES;
}

bool IsBusText(const std::string& text)
{
    return text.find('\0') == std::string::npos && dbus_validate_utf8(text.c_str(), nullptr);
}

} // namespace veskar
