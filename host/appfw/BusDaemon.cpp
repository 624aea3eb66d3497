#include "BusDaemon.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include <sdbus-c++/sdbus-c++.h>

#include "Log.h"

namespace veskar
{
namespace
{

constexpr std::chrono::seconds LongestWait(2);
constexpr const char* Name = "org.freedesktop.DBus";

/** Runs `question` on a proxy of the daemon; its default answer where the bus fails. */
template <typename Question>
auto Ask(Question question) -> decltype(question(std::declval<sdbus::IProxy&>()))
{
    try
    {
        const auto connection = sdbus::createSessionBusConnection();
        connection->setMethodCallTimeout(LongestWait);
        const auto daemon = sdbus::createProxy(*connection, Name, "/org/freedesktop/DBus");
        return question(*daemon);
    }
    catch (const sdbus::Error& error)
    {
        APPFW_ERROR("the bus daemon does not answer: %s", error.what());
        return {};
    }
}

bool HasOwner(sdbus::IProxy& daemon, const std::string& name)
{
    bool owned = false;
    daemon.callMethod("NameHasOwner").onInterface(Name).withArguments(name).storeResultsTo(owned);
    return owned;
}

bool CanBeStarted(sdbus::IProxy& daemon, const std::string& name)
{
    std::vector<std::string> names;
    daemon.callMethod("ListActivatableNames").onInterface(Name).storeResultsTo(names);
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

bool NameHasOwner(const std::string& name)
{
    return Ask([&](sdbus::IProxy& daemon) { return HasOwner(daemon, name); });
}

bool NameIsReachable(const std::string& name)
{
    return Ask([&](sdbus::IProxy& daemon) { return HasOwner(daemon, name) || CanBeStarted(daemon, name); });
}

} // namespace veskar
