/** Knows whether the bus is still there. */
#pragma once

#include "Bus.h"

namespace veskar
{

/**
 * A call on a dead bus gets no reply, not even an error, so whoever waits for a reply has to check here too. When the
 * bus dies, the library itself tells the main loop to end. Main thread only.
 */
class BusWatch
{
public:
    explicit BusWatch(Eldbus_Connection* connection);
    BusWatch(const BusWatch&) = delete;
    BusWatch& operator=(const BusWatch&) = delete;
    ~BusWatch();

    bool IsGone() const { return m_isGone; }

private:
    static void s_OnDisconnected(void* data, Eldbus_Connection* connection, void* event);

    Eldbus_Connection* m_connection;
    bool m_isGone = false;
};

} // namespace veskar
