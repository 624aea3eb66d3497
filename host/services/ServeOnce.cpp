#include "ServeOnce.h"

#include <poll.h>

#include <algorithm>
#include <iterator>
#include <limits>

namespace veskar
{
namespace
{
constexpr int NO_TIMEOUT = -1;

int MillisecondsUntil(Clock::time_point deadline)
{
    if (deadline == NEVER)
    {
        return NO_TIMEOUT;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, std::numeric_limits<int>::max()));
}

int Shorter(int left, int right)
{
    if (left == NO_TIMEOUT || right == NO_TIMEOUT)
    {
        return std::max(left, right);
    }
    return std::min(left, right);
}

} // namespace

bool ServeOnce(sdbus::IConnection& connection, Clock::time_point deadline, int input)
{
    if (connection.processPendingRequest())
    {
        return true;
    }
    if (deadline != NEVER && Clock::now() >= deadline)
    {
        return false;
    }
    const auto bus = connection.getEventLoopPollData();
    pollfd descriptors[]{{bus.fd, bus.events, 0}, {input, POLLIN, 0}};
    ::poll(descriptors, std::size(descriptors), Shorter(bus.getPollTimeout(), MillisecondsUntil(deadline)));
    return true;
}

} // namespace veskar
