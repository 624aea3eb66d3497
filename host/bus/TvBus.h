/** The names on the TV's bus, for those who own them and those who call them. */
#pragma once

#include <algorithm>
#include <string>

namespace veskar
{

/** Where the owner of a bus name has its object: "org.tizen.veskar-app" at "/org/tizen/veskar_app". */
inline std::string PathOf(const std::string& busName)
{
    std::string path = "/" + busName;
    std::replace(path.begin(), path.end(), '.', '/');
    std::replace(path.begin(), path.end(), '-', '_');
    return path;
}

/** What every application of the TV has on the bus. Its id is its bus name. */
namespace Applications
{

inline constexpr const char* DIALOGUES = "org.tizen.veskar-app";
inline constexpr const char* NUMBER_PAD = "org.tizen.function-osd";

inline constexpr const char* INTERFACE = "org.tizen.Application1";
inline constexpr const char* APP_CONTROL = "AppControl";
inline constexpr const char* PAUSE = "Pause";
inline constexpr const char* RESUME = "Resume";
inline constexpr const char* TERMINATE = "Terminate";
/** The error for each call that reached a process that cannot run here. The text says why. */
inline constexpr const char* CANNOT_RUN_ERROR = "org.tizen.Application1.Error.CannotRun";

/** What an application tells of the screen that the viewer sees; see host/appfw/ScreenObject.h. */
inline constexpr const char* SCREEN_INTERFACE = "org.tizen.Screen1";
inline constexpr const char* SHOWN = "Shown";
inline constexpr const char* CLOSED = "Closed";
inline constexpr const char* TEXT = "Text";
inline constexpr const char* UI_ID = "UiId";

/** Owned by a process of that id on its way out: under it, the next process asks for the calls that this one holds. */
inline std::string LeavingNameOf(const std::string& id)
{
    return id + ".leaving";
}
inline constexpr const char* LEAVING_INTERFACE = "org.tizen.LeavingApplication1";
inline constexpr const char* TAKE_OVER = "TakeOver";

} // namespace Applications

/** Where the application's answers and menu positions go. */
namespace Controller
{

inline constexpr const char* BUS_NAME = "org.tizen.veskar-middleware";
inline constexpr const char* INTERFACE = "org.tizen.VesKarController1";
inline constexpr const char* SEND_RESPONSE = "SendResponse";
inline constexpr const char* OPEN_MENU_POSITION = "OpenMenuPosition";

/** The kinds of an answer. */
enum Kind : int
{
    Answered = 0,
    Closed = 2,
    Back = 3
};

} // namespace Controller

namespace Manager
{

inline constexpr const char* BUS_NAME = "org.tizen.context-manager";
inline constexpr const char* INTERFACE = "org.tizen.ContextManager1";
inline constexpr const char* REQUEST_TASK = "RequestTask";

} // namespace Manager

} // namespace veskar
