#include "BusWatch.h"

#include "Log.h"
#include "MainLoop.h"

namespace veskar
{

BusWatch::BusWatch(Eldbus_Connection* connection) : m_connection(connection)
{
    eldbus_connection_event_callback_add(m_connection, ELDBUS_CONNECTION_EVENT_DISCONNECTED, s_OnDisconnected, this);
}

BusWatch::~BusWatch()
{
    eldbus_connection_event_callback_del(m_connection, ELDBUS_CONNECTION_EVENT_DISCONNECTED, s_OnDisconnected, this);
}

void BusWatch::s_OnDisconnected(void* data, Eldbus_Connection*, void*)
{
    APPFW_ERROR("the TV's bus is gone: the application ends");
    static_cast<BusWatch*>(data)->m_isGone = true;
    WakeMainLoop();
}

} // namespace veskar
