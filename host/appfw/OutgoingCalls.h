/** Calls to the TV's other sides that nobody waits for, and that must get there even when the process is ending. */
#pragma once

#include <functional>
#include <list>
#include <string>

#include "Bus.h"

namespace veskar
{

/**
 * A message to a name that the bus has to start a program for is dropped when its sender leaves meanwhile. So each call
 * is kept until its reply, and the process stays a while for those that are left. Main thread.
 */
class OutgoingCalls
{
public:
    /** Gets the reply, or the error that stands for it. */
    using Done = std::function<void(const Eldbus_Message* reply)>;

    OutgoingCalls() = default;
    OutgoingCalls(const OutgoingCalls&) = delete;
    OutgoingCalls& operator=(const OutgoingCalls&) = delete;
    ~OutgoingCalls() { GiveUp(); }

    /** False, and `done` is not called, when the connection is dead. */
    bool Send(Eldbus_Connection* connection, BusMessage call, Done done);

    /** Forgets what is still under way: its `done` is not called any more. */
    void GiveUp();

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

/** Says in the log what came instead of the callee's reply; false where it is a reply. */
bool LogRefusal(const Eldbus_Message* reply, const std::string& callee);

} // namespace veskar
