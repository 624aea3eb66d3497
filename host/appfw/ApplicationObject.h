/** The application's object on the bus. */
#pragma once

#include <functional>

#include "Bus.h"
#include "LifecycleQueue.h"

namespace veskar
{

/**
 * Checks each call and passes it on as an event; whoever handles the event sends the reply. An invalid call is refused
 * immediately.
 */
class ApplicationObject
{
public:
    using Received = std::function<void(LifecycleEvent)>;

    ApplicationObject(Eldbus_Connection* connection, const std::string& appId, Received received);
    ApplicationObject(const ApplicationObject&) = delete;
    ApplicationObject& operator=(const ApplicationObject&) = delete;
    ~ApplicationObject() = default;

private:
    static Eldbus_Message* s_OnAppControl(const Eldbus_Service_Interface* object, const Eldbus_Message* call);
    template <LifecycleKind Kind>
    static Eldbus_Message* s_OnCall(const Eldbus_Service_Interface* object, const Eldbus_Message* call);

    Received m_received;
    BusObject m_object;
};

} // namespace veskar
