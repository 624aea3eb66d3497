/** Calls that nobody waits for, but that must arrive even if the process is ending. */
#pragma once

#include <functional>
#include <list>
#include <string>

#include "Bus.h"

namespace veskar
{

/**
 * The bus drops a message for a program that it is still starting if the sender leaves. So each call is kept until its
 * reply, and an ending process waits a while for the remaining ones. Main thread only.
 */
class OutgoingCalls
{
public:
    /** Called with the reply or with an error. */
    using Done = std::function<void(const Eldbus_Message* reply)>;

    OutgoingCalls() = default;
    OutgoingCalls(const OutgoingCalls&) = delete;
    OutgoingCalls& operator=(const OutgoingCalls&) = delete;
    ~OutgoingCalls() { GiveUp(); }

    /** Returns false when the connection is dead; `done` is not called then. */
    bool Send(Eldbus_Connection* connection, BusMessage call, Done done);

    /** Drops all calls without a reply. Their `done` is not called. */
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

/** Logs an error that came instead of the callee's reply. Returns false for a reply. */
bool LogRefusal(const Eldbus_Message* reply, const std::string& callee);

} // namespace veskar
