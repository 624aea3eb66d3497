#include "LifecycleQueue.h"

#include <algorithm>

namespace veskar
{
namespace
{

LifecycleEvent TakeFront(std::deque<LifecycleEvent>& events)
{
    auto event = std::move(events.front());
    events.pop_front();
    return event;
}

} // namespace

void LifecycleQueue::AddWindowEvent(LifecycleKind kind)
{
    m_windowEvents.push_back({kind, nullptr, nullptr});
    m_Arm();
}

void LifecycleQueue::AddCall(LifecycleEvent event)
{
    m_calls.push_back(std::move(event));
    m_Arm();
}

void LifecycleQueue::Start()
{
    m_started = true;
    m_Arm();
}

void LifecycleQueue::Stop()
{
    m_started = false;
    if (m_turn != nullptr)
    {
        ecore_timer_del(m_turn);
        m_turn = nullptr;
    }
}

void LifecycleQueue::PutFirst(const std::string& sender)
{
    std::stable_partition(m_calls.begin(), m_calls.end(),
                          [&](const LifecycleEvent& event)
                          { return event.call && eldbus_message_sender_get(event.call.get()) == sender; });
}

bool LifecycleQueue::HoldsRequest() const
{
    return std::any_of(m_calls.begin(), m_calls.end(),
                       [](const LifecycleEvent& event) { return event.kind == LifecycleKind::Request; });
}

std::optional<LifecycleEvent> LifecycleQueue::TakeCall()
{
    return m_calls.empty() ? std::nullopt : std::optional(TakeFront(m_calls));
}

void LifecycleQueue::m_Arm()
{
    if (m_started && m_turn == nullptr && !m_Empty())
    {
        m_turn = ecore_timer_add(0, s_OnTurn, this);
    }
}

Eina_Bool LifecycleQueue::s_OnTurn(void* data)
{
    auto* queue = static_cast<LifecycleQueue*>(data);
    queue->m_turn = nullptr;
    auto event = queue->m_TakeNext();
    queue->m_deliver(event);
    queue->m_Arm();
    return ECORE_CALLBACK_CANCEL;
}

LifecycleEvent LifecycleQueue::m_TakeNext()
{
    const bool callFirst = m_firstTurn && !m_calls.empty();
    m_firstTurn = false;
    return TakeFront(callFirst || m_windowEvents.empty() ? m_calls : m_windowEvents);
}

} // namespace veskar
