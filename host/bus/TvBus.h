/** The names on the TV's bus, for those who own them and those who call them. */
#pragma once

#include <algorithm>
#include <string>

namespace veskar
{
/** What every application of the TV has on the bus. Its id is its bus name. */
namespace Applications
{
inline const std::string dialogues = "org.tizen.veskar-app";
inline const std::string interface = "org.tizen.Application1";
inline const std::string appControl = "AppControl";

/** Where the application of that id lives: "org.tizen.veskar-app" at "/org/tizen/veskar_app". */
inline std::string PathOf(const std::string& id)
{
    std::string path = "/" + id;
    std::replace(path.begin(), path.end(), '.', '/');
    std::replace(path.begin(), path.end(), '-', '_');
    return path;
}

/** Owned by a process of that id on its way out: under it, the next process asks for the calls that this one holds. */
inline std::string LeavingNameOf(const std::string& id)
{
    return id + ".leaving";
}
inline const std::string leavingInterface = "org.tizen.LeavingApplication1";
inline const std::string takeOver = "TakeOver";
} // namespace Applications

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
} // namespace veskar
