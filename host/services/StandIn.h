/** An application of the TV that is not there: it has the name, and says what it was asked. */
#pragma once

#include "DeskBus.h"

#include <functional>
#include <memory>
#include <string>

namespace VESKAR_DESK
{
class StandIn
{
public:
    /** `terminated` runs when the application is told to end; the stand-in must live on until it has returned. */
    StandIn(sdbus::IConnection& connection, const std::string& appId, std::function<void()> terminated);

private:
    std::unique_ptr<sdbus::IObject> m_object;
};
} // namespace VESKAR_DESK
