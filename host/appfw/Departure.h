/** Ends a process of the application without losing what has reached it or what it has sent. */
#pragma once

#include <functional>
#include <string>

#include "Bus.h"
#include "BusWatch.h"
#include "LifecycleQueue.h"
#include "OutgoingCalls.h"
#include "OwnName.h"
#include "Replies.h"

namespace veskar
{

/** Both operations run the main loop until everything that was sent has arrived or takes too long. Main thread only. */
class Departure
{
public:
    /** All arguments must outlive this object. */
    Departure(Eldbus_Connection* connection, const BusWatch& bus, LifecycleQueue& queue, OutgoingCalls& outgoing,
              std::string appId);
    Departure(const Departure&) = delete;
    Departure& operator=(const Departure&) = delete;
    /** Drops calls that have no reply yet. */
    ~Departure() { m_outgoing.GiveUp(); }

    /** Passes requests that were not delivered to the next process, and its replies to their senders. */
    void HandOver(OwnName& name);

    /** Refuses requests that were not delivered, with this reason. */
    void Refuse(OwnName& name, const char* why);

private:
    void m_StartNext();
    void m_PassOnCalls(const std::string& successor);
    void m_PassOn(const LifecycleEvent& event, const std::string& successor);
    void m_RefuseCalls(const char* name, const char* why);
    /** Calls that are not requests are simply replied to. */
    void m_EmptyQueue(const std::function<void(const LifecycleEvent& request)>& handle);
    bool m_Send(BusMessage call, OutgoingCalls::Done done);
    void m_AwaitOutgoing();

    Eldbus_Connection* m_connection;
    const BusWatch& m_bus;
    LifecycleQueue& m_queue;
    OutgoingCalls& m_outgoing;
    const std::string m_id;
    const Replies m_replies;
};

} // namespace veskar
