/** One step of a bus loop with a deadline, which the library's own loop does not support. */
#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <chrono>

namespace veskar
{

using Clock = std::chrono::steady_clock;
inline constexpr Clock::time_point NEVER = Clock::time_point::max();

inline constexpr int NO_INPUT = -1;

/**
 * Handles one message of the connection, or waits until there may be one, or until the descriptor `input` can be read.
 * False once the deadline has passed without any. Throws sdbus::Error when the bus is gone.
 */
bool ServeOnce(sdbus::IConnection& connection, Clock::time_point deadline, int input = NO_INPUT);

} // namespace veskar
