/** Whether the TV's bus is still there. */
#pragma once

#include "Bus.h"

namespace veskar
{

/**
 * A bus that dies answers nothing any more, not even with an error: whoever waits for a reply has to look here too.
 * The library itself asks the main loop to end, as for a signal. Main thread.
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
