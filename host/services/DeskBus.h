/** The desk's own names on the TV's bus: the daemon owns them and the tools call them. */
#pragma once

#include "TvBus.h"

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace veskar
{

/** A service request on the bus: each value is a string or an array of strings. */
using RequestData = std::map<std::string, sdbus::Variant>;

/**
 * The desk's own interface on the middleware's object, through which a person or a test plays the middleware. The
 * daemon forwards the request to the application and starts it if it is not running.
 */
namespace Desk
{

inline constexpr const char* INTERFACE = "org.tizen.VesKarDesk1";

/** Ask(i uiId, y sourceId, a{sv} request) → (i uiId, y sourceId, i kind, y button, y item, s data): the answer. */
inline constexpr const char* ASK = "Ask";
/** Tell(a{sv} request) → (): the application took the request. Does not wait for an answer. */
inline constexpr const char* TELL = "Tell";
/**
 * OpenMenu(a{sv} request) → (a(ss) tasks, ai positions): as Tell. Returns the tasks, each with its action, and the
 * menu positions that the application asked for because of the request.
 */
inline constexpr const char* OPEN_MENU = "OpenMenu";
using Tasks = std::vector<sdbus::Struct<std::string, std::string>>;
using Positions = std::vector<std::int32_t>;

/** The application refused the request; the message is its own. */
inline constexpr const char* REFUSED = "org.tizen.VesKarDesk1.Error.Refused";
/** There is no such application, or it could not be started. */
inline constexpr const char* NO_APPLICATION = "org.tizen.VesKarDesk1.Error.NoApplication";
/** The application went away without an answer. */
inline constexpr const char* GONE = "org.tizen.VesKarDesk1.Error.Gone";

} // namespace Desk

} // namespace veskar
