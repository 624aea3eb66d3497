/** The desk's own names on the TV's bus, as the daemon owns them and the tools call them. */
#pragma once

#include "TvBus.h"

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace veskar
{
/** A service request as it travels: each value one string or one array of strings. */
using RequestData = std::map<std::string, sdbus::Variant>;

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
 * OpenMenu(a{sv} request) → (a(ss) tasks, ai positions): as Tell; the tasks, each with its action, and the menu
 * positions that the application asked for because of it.
 */
inline const std::string openMenu = "OpenMenu";
using Tasks = std::vector<sdbus::Struct<std::string, std::string>>;
using Positions = std::vector<std::int32_t>;

/** The application refused the request; the message is its own. */
inline const std::string refused = "org.tizen.VesKarDesk1.Error.Refused";
/** There is no such application, or it could not be started. */
inline const std::string noApplication = "org.tizen.VesKarDesk1.Error.NoApplication";
/** The application went away without an answer. */
inline const std::string gone = "org.tizen.VesKarDesk1.Error.Gone";
} // namespace Desk
} // namespace veskar
