#include "OutgoingCalls.h"

#include <algorithm>

#include "Log.h"
#include "MainLoop.h"

namespace veskar
{

namespace
{

constexpr double BUS_DEFAULT_TIMEOUT = -1;

} // namespace

void OutgoingCalls::GiveUp()
{
    while (!m_calls.empty())
    {
        // Cancelling runs s_OnReply, which takes the call off the list.
        m_calls.front().done = nullptr;
        eldbus_pending_cancel(m_calls.front().pending);
    }
}

bool OutgoingCalls::Send(Eldbus_Connection* connection, BusMessage call, Done done)
{
    auto& kept = m_calls.emplace_back(Call{this, std::move(done), nullptr});
    kept.pending = eldbus_connection_send(connection, call.release(), s_OnReply, &kept, BUS_DEFAULT_TIMEOUT);
    if (kept.pending == nullptr)
    {
        // The library does not run the callback of a call that it could not send.
        m_calls.pop_back();
        return false;
    }
    return true;
}

void OutgoingCalls::s_OnReply(void* data, const Eldbus_Message* reply, Eldbus_Pending*)
{
    auto* call = static_cast<Call*>(data);
    auto& calls = call->owner->m_calls;
    const auto done = std::move(call->done);
    calls.erase(std::find_if(calls.begin(), calls.end(), [&](const Call& each) { return &each == call; }));
    WakeMainLoop();
    if (done)
    {
        done(reply);
    }
}

bool LogRefusal(const Eldbus_Message* reply, const std::string& callee)
{
    const auto error = ErrorOf(reply);
    if (error)
    {
        APPFW_ERROR("%s did not take the call: %s (%s)", callee.c_str(), error->text, error->name);
    }
    return error.has_value();
}

} // namespace veskar
