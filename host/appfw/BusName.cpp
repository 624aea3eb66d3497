#include "BusName.h"

#include <algorithm>
#include <cstdlib>

#include <dbus/dbus.h>

namespace veskar
{

bool IsApplicationId(const char* id)
{
    return id != nullptr && id[0] != ':' && dbus_validate_bus_name(id, nullptr);
}

std::string ObjectPath(const std::string& id)
{
    auto path = "/" + id;
    std::replace(path.begin(), path.end(), '.', '/');
    std::replace(path.begin(), path.end(), '-', '_');
    return path;
}

std::string OwnApplicationId()
{
    const char* id = getenv("VESKAR_APP_ID");
    return id != nullptr && *id != '\0' ? id : "org.tizen.veskar-app";
}

bool IsBusText(const char* text)
{
    return dbus_validate_utf8(text, nullptr);
}

} // namespace veskar
