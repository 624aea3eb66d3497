/** The names on the desk's bus, as the daemon owns them and the tools call them. */
#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <map>
#include <string>

namespace veskar
{
/** A service request as it travels: each value one string or one array of strings. */
using RequestData = std::map<std::string, sdbus::Variant>;

/** What every application of the TV has on the bus, under its own id. */
namespace Application
{
inline const std::string id = "org.tizen.veskar-app";
inline const std::string interface = "org.tizen.Application1";
inline const std::string appControl = "AppControl";

/** An application's object path: its id with slashes for dots, and underscores for what a path cannot hold. */
inline std::string PathOf(const std::string& appId)
{
    std::string path = "/" + appId;
    for (char& letter : path)
    {
        letter = letter == '.' ? '/' : letter == '-' ? '_' : letter;
    }
    return path;
}
} // namespace Application

/** Where the application's answers and menu positions go. */
namespace Controller
{
inline const std::string busName = "org.tizen.veskar-middleware";
inline const std::string path = "/org/tizen/veskar_middleware";
inline const std::string interface = "org.tizen.VesKarController1";
inline const std::string sendResponse = "SendResponse";
inline const std::string openMenuPosition = "OpenMenuPosition";

/** The kinds of an answer. */
enum Kind : int
{
    answered = 0,
    closed = 2,
    back = 3
};
} // namespace Controller

namespace Manager
{
inline const std::string busName = "org.tizen.context-manager";
inline const std::string path = "/org/tizen/context_manager";
inline const std::string interface = "org.tizen.ContextManager1";
inline const std::string requestTask = "RequestTask";
} // namespace Manager

/**
 * The desk's own interface on the middleware's object: whoever sits at the desk plays the middleware through it. The
 * daemon forwards the request to the application, starting it where it does not run.
 */
namespace Desk
{
inline const std::string interface = "org.tizen.VesKarDesk1";

/** Ask(i uiId, y sourceId, a{sv} request) → (i uiId, y sourceId, i kind, y button, y item, s data): the answer. */
inline const std::string ask = "Ask";
/** Tell(a{sv} request) → (): the application took the request; nothing more is waited for. */
inline const std::string tell = "Tell";
/**
 * OpenMenu(a{sv} request) → (): as Tell; what the application asks because of it comes to the caller alone, as the
 * signals TaskRequested(s task, s action) and MenuPositionOpened(i position), before or after the reply.
 */
inline const std::string openMenu = "OpenMenu";
inline const std::string taskRequested = "TaskRequested";
inline const std::string menuPositionOpened = "MenuPositionOpened";

/** The application refused the request; the message is its own. */
inline const std::string refused = "org.tizen.VesKarDesk1.Error.Refused";
/** There is no such application, or it could not be started. */
inline const std::string noApplication = "org.tizen.VesKarDesk1.Error.NoApplication";
/** The application went away without an answer. */
inline const std::string gone = "org.tizen.VesKarDesk1.Error.Gone";
} // namespace Desk
} // namespace veskar
