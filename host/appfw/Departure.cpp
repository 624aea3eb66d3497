#include "Departure.h"

#include <utility>

#include "AppControlCodec.h"
#include "HandOver.h"
#include "Log.h"
#include "MainLoop.h"
#include "TvBus.h"

namespace veskar
{

namespace
{

/** Seconds. Enough for a busy TV to start the program that a last message goes to; then the process ends anyway. */
constexpr double LONGEST_FAREWELL = 10;

} // namespace

Departure::Departure(Eldbus_Connection* connection, const BusWatch& bus, LifecycleQueue& queue, OutgoingCalls& outgoing,
                     std::string appId)
    : m_connection(connection), m_bus(bus), m_queue(queue), m_outgoing(outgoing), m_id(std::move(appId)),
      m_replies(connection, bus)
{
}

void Departure::HandOver(OwnName& name)
{
    // Before the id is released, because the next process asks for it as soon as it owns the id.
    const Leaving leaving(m_connection, m_bus, m_id,
                          [this](const std::string& successor) { m_PassOnCalls(successor); });
    name.Release();
    if (m_queue.HoldsRequest())
    {
        m_StartNext();
    }
    m_AwaitOutgoing();
    m_RefuseCalls(REFUSED_ERROR, "the next process of the application did not ask for the request");
}

void Departure::Refuse(OwnName& name, const char* why)
{
    name.Release();
    m_RefuseCalls(Applications::CANNOT_RUN_ERROR, why);
    m_AwaitOutgoing();
}

void Departure::m_StartNext()
{
    auto call = NewCall(ELDBUS_FDO_BUS, ELDBUS_FDO_PATH, ELDBUS_FDO_INTERFACE, "StartServiceByName");
    eldbus_message_arguments_append(call.get(), "su", m_id.c_str(), 0U);
    const auto started = [this](const Eldbus_Message* reply)
    {
        if (const auto error = ErrorOf(reply))
        {
            m_RefuseCalls(error->name, error->text);
        }
    };
    m_Send(std::move(call), started);
}

void Departure::m_PassOnCalls(const std::string& successor)
{
    m_EmptyQueue([&](const LifecycleEvent& request) { m_PassOn(request, successor); });
}

void Departure::m_RefuseCalls(const char* name, const char* why)
{
    m_EmptyQueue([&](const LifecycleEvent& request) { m_replies.Refused(request.call.get(), name, why); });
}

void Departure::m_EmptyQueue(const std::function<void(const LifecycleEvent& request)>& handle)
{
    while (const auto event = m_queue.TakeCall())
    {
        if (event->kind == LifecycleKind::Request)
        {
            handle(*event);
        }
        else
        {
            m_replies.Done(event->call.get());
        }
    }
    WakeMainLoop(); // m_AwaitOutgoing waits for the queue too
}

void Departure::m_PassOn(const LifecycleEvent& event, const std::string& successor)
{
    APPFW_INFO("a request came while the application ended: passed on to the next process");
    const std::shared_ptr<Eldbus_Message> asked = ShareMessage(event.call.get());
    const auto forward = [this, asked](const Eldbus_Message* reply)
    {
        if (const auto error = ErrorOf(reply))
        {
            m_replies.Refused(asked.get(), error->name, error->text);
            return;
        }
        m_replies.Done(asked.get());
    };
    if (!m_Send(EncodeAppControl(m_id, successor, *event.request), forward))
    {
        APPFW_ERROR("a request that came while the application ended is lost: the bus is gone");
    }
}

bool Departure::m_Send(BusMessage call, OutgoingCalls::Done done)
{
    return !m_bus.IsGone() && m_outgoing.Send(m_connection, std::move(call), std::move(done));
}

void Departure::m_AwaitOutgoing()
{
    const auto done = [this]
    {
        return m_bus.IsGone() || (m_outgoing.Empty() && !m_queue.HoldsRequest());
    };
    if (!TurnMainLoopUntil(done, LONGEST_FAREWELL))
    {
        APPFW_WARN("not everybody has replied: what was sent to a program that did not start is lost");
    }
}

} // namespace veskar
