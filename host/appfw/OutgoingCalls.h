/** Calls to other applications that nobody waits for, and that must still get there when the process is about to end.
 */
#pragma once

#include <functional>
#include <list>

#include "Bus.h"

namespace veskar
{

/**
 * A message to an application that the bus has to start first is dropped when its sender leaves meanwhile. So each call
 * is kept until its reply, and the process stays until none is left. Main thread.
 */
class OutgoingCalls
{
public:
    /** Gets the reply, or the error that stands for it. */
    using Done = std::function<void(const Eldbus_Message* reply)>;

    OutgoingCalls() = default;
    OutgoingCalls(const OutgoingCalls&) = delete;
    OutgoingCalls& operator=(const OutgoingCalls&) = delete;
    /** Gives up what is still under way; `done` is not called any more. */
    ~OutgoingCalls();

    /** False, and `done` is not called, when the connection is dead. */
    bool Send(Eldbus_Connection* connection, BusMessage call, Done done);

    bool Empty() const { return m_calls.empty(); }

private:
    struct Call
    {
        OutgoingCalls* owner;
        Done done;
        Eldbus_Pending* pending;
    };

    static void s_OnReply(void* data, const Eldbus_Message* reply, Eldbus_Pending* pending);

    std::list<Call> m_calls;
};

} // namespace veskar
