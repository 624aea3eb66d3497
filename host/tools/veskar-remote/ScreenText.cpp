#include "ScreenText.h"

#include "TvBus.h"

#include <sdbus-c++/sdbus-c++.h>

namespace veskar
{
namespace
{

/** The process that owns the name: a call to the name itself would start the application. */
std::string OwnerOf(sdbus::IConnection& bus, const std::string& name)
{
    std::string owner;
    sdbus::createProxy(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus")
        ->callMethod("GetNameOwner")
        .onInterface("org.freedesktop.DBus")
        .withArguments(name)
        .storeResultsTo(owner);
    return owner;
}

} // namespace

ScreenText::ScreenText()
{
    try
    {
        m_bus = sdbus::createSessionBusConnection();
    }
    catch (const sdbus::Error& error)
    {
        throw NoBus("no bus: " + error.getMessage());
    }
}

ScreenText::~ScreenText() = default;

std::optional<std::string> ScreenText::Now()
{
    try
    {
        const std::string path = PathOf(Applications::DIALOGUES);
        const auto application = sdbus::createProxy(*m_bus, OwnerOf(*m_bus, Applications::DIALOGUES), path);
        return application->getProperty(Applications::TEXT)
            .onInterface(Applications::SCREEN_INTERFACE)
            .get<std::string>();
    }
    catch (const sdbus::Error&)
    {
        return std::nullopt; // it does not run, or has ended meanwhile
    }
}

} // namespace veskar
