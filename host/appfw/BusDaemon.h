/**
 * Questions to the bus daemon itself, which always answers at once. They go over a connection of their own: the
 * application's can only be heard from its main loop, which must not turn inside one of its callbacks.
 */
#pragma once

#include <string>

namespace veskar
{

/** False too where there is no bus. */
bool NameHasOwner(const std::string& name);

/** True when a message to the name reaches somebody: the name has an owner, or the daemon can start one. */
bool NameIsReachable(const std::string& name);

} // namespace veskar
