/** An application of the TV that is not there: it has the name, and says what it was asked. */
#pragma once

#include "DeskBus.h"

#include <functional>
#include <memory>
#include <string>

namespace veskar
{
class StandIn
{
public:
    /** Owns the name from now on. `terminated` runs when the application is told to end, and must not destroy this. */
    StandIn(sdbus::IConnection& connection, const std::string& appId, std::function<void()> terminated);

    /** The bus library's callbacks name this object. */
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;

private:
    void m_RegisterMethods();
    void m_Say(const std::string& what) const;

    std::string m_appId;
    std::function<void()> m_terminated;
    std::unique_ptr<sdbus::IObject> m_object;
};

} // namespace veskar
