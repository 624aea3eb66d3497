#include "ContextManager.h"
#include "CoreLimit.h"
#include "Middleware.h"
#include "Print.h"
#include "ServeOnce.h"
#include "StandIn.h"

#include <CLI/CLI.hpp>

#include <list>

using namespace veskar;

namespace
{
/** Exit statuses, as <sysexits.h> numbers them. */
constexpr int BAD_USAGE = 64;
constexpr int UNAVAILABLE = 69;

/**
 * False when another process owns the name. The bus starts a process for each called name without an owner. The first
 * process takes both names, so a second one is not needed.
 */
bool OwnName(sdbus::IConnection& connection, const std::string& name)
{
    try
    {
        connection.requestName(name);
        return true;
    }
    catch (const sdbus::Error& error)
    {
        Print(name + " stays with whoever has it: " + error.getMessage());
        return false;
    }
}

/** The middleware and the context manager, until the bus ends. */
void ServeTv(sdbus::IConnection& connection)
{
    Middleware middleware(connection);
    ContextManager contextManager(connection, [&middleware](const std::string& task, const std::string& action)
                                  { middleware.TaskRequested(task, action); });
    // Only now that the objects exist: the message that started this process is delivered as soon as it owns the name.
    if (!OwnName(connection, Controller::BUS_NAME))
    {
        return;
    }
    // A stand-in may own the context manager's name.
    OwnName(connection, Manager::BUS_NAME);
    while (true)
    {
        ServeOnce(connection, NEVER);
    }
}

/** Stands in for the named applications until each of them has been told to end. */
void ServeStandIns(sdbus::IConnection& connection, const std::vector<std::string>& appIds)
{
    std::size_t running = appIds.size();
    std::list<StandIn> standIns;
    for (const std::string& appId : appIds)
    {
        standIns.emplace_back(connection, appId,
                              [&connection, &running, appId]
                              {
                                  connection.releaseName(appId);
                                  --running;
                              });
    }
    while (running > 0)
    {
        ServeOnce(connection, NEVER);
    }
}

} // namespace

int main(int argc, char** argv)
{
    WriteNoCoreDump();
    CLI::App app{
        "Stands for the other sides of a TV on the session bus, and says on standard error what it was asked.\n"
        "Without options: the middleware and the context manager, as the bus starts it."};
    std::vector<std::string> appIds;
    app.add_option("--own", appIds, "Stand for these applications instead, for example org.tizen.wizard")
        ->type_name("APP_ID");
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? 0 : BAD_USAGE;
    }

    try
    {
        const auto connection = sdbus::createSessionBusConnection();
        if (appIds.empty())
        {
            ServeTv(*connection);
        }
        else
        {
            ServeStandIns(*connection, appIds);
        }
        return 0;
    }
    catch (const sdbus::Error& error)
    {
        const bool busEnded = error.getName() == "org.freedesktop.DBus.Error.Disconnected";
        Print(busEnded ? "the bus ended" : error.what());
        return busEnded ? 0 : UNAVAILABLE;
    }
}
