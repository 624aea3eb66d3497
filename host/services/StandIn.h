/** Stands in for an application that the desk does not have: owns its name and prints what it is asked. */
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
    /** Requests the name. `terminated` is called when the application is told to end; it must not destroy this object.
     */
    StandIn(sdbus::IConnection& connection, const std::string& appId, std::function<void()> terminated);

    /** The bus library's callbacks refer to this object. */
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
