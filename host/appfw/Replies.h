/** The replies to calls from the bus. */
#pragma once

#include "Bus.h"
#include "BusWatch.h"

namespace veskar
{

/** Sends nothing for a null call, for which nobody waits, or when the bus is gone. Main thread only. */
class Replies
{
public:
    Replies(Eldbus_Connection* connection, const BusWatch& bus) : m_connection(connection), m_bus(bus) {}

    void Done(const Eldbus_Message* call) const
    {
        if (call != nullptr && !m_bus.IsGone())
        {
            eldbus_connection_send(m_connection, eldbus_message_method_return_new(call), nullptr, nullptr, -1);
        }
    }

    void Refused(const Eldbus_Message* call, const char* name, const char* why) const
    {
        if (call != nullptr && !m_bus.IsGone())
        {
            eldbus_connection_send(m_connection, eldbus_message_error_new(call, name, why), nullptr, nullptr, -1);
        }
    }

private:
    Eldbus_Connection* m_connection;
    const BusWatch& m_bus;
};

} // namespace veskar
