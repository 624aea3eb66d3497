/** The end of a process of the application: nothing that has reached it, and nothing that it has sent, is lost. */
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

/** Both ways out turn the main loop, and return when all that was sent has arrived, or took too long. Main thread. */
class Departure
{
public:
    /** Everything given outlives this object. */
    Departure(Eldbus_Connection* connection, const BusWatch& bus, LifecycleQueue& queue, OutgoingCalls& outgoing,
              std::string appId);
    Departure(const Departure&) = delete;
    Departure& operator=(const Departure&) = delete;
    /** Gives up what is still under way. */
    ~Departure() { m_outgoing.GiveUp(); }

    /** Requests that were not delivered go to the next process, and its replies to who asked. */
    void HandOver(OwnName& name);

    /** Requests are refused, with the reason. */
    void Refuse(OwnName& name, const char* why);

private:
    void m_StartNext();
    void m_PassOnCalls(const std::string& successor);
    void m_PassOn(const LifecycleEvent& event, const std::string& successor);
    void m_RefuseCalls(const char* name, const char* why);
    /** The calls that are no requests have nothing to wait for any more. */
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
