/** The events for the application; one is delivered in each turn of the main loop. */
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <Ecore.h>

#include "AppControl.h"
#include "Bus.h"

namespace veskar
{

enum class LifecycleKind
{
    Request,
    Pause,
    Resume,
    Terminate,
    LanguageChanged
};

struct LifecycleEvent
{
    LifecycleKind kind;
    /** The data of a request; null for the other kinds. */
    std::unique_ptr<app_control_s> request;
    /** The call to reply to when the event has been delivered; null when nobody waits. */
    BusMessage call;
};

/**
 * Two queues. Events of the application's own window are delivered first, in their order: they are the result of what
 * was delivered before, and a later request must not overtake them. Calls from the bus follow, in their order.
 *
 * There is one exception, at the start: the request that started the process is delivered before the resume of the
 * window that the create callback has shown.
 *
 * A timer delivers events at the beginning of a turn. So after the loop was told to end nothing more is delivered, and
 * the remaining calls can be taken out for the next process.
 */
class LifecycleQueue
{
public:
    using Deliver = std::function<void(LifecycleEvent&)>;

    explicit LifecycleQueue(Deliver deliver) : m_deliver(std::move(deliver)) {}
    LifecycleQueue(const LifecycleQueue&) = delete;
    LifecycleQueue& operator=(const LifecycleQueue&) = delete;
    ~LifecycleQueue() { Stop(); }

    void AddWindowEvent(LifecycleKind kind);
    void AddCall(LifecycleEvent event);

    /** Delivers what is held already and what is added, until Stop. Never from within this call. */
    void Start();
    void Stop();

    /** Moves the calls of that sender before all others. Otherwise their order stays. */
    void PutFirst(const std::string& sender);

    bool HoldsRequest() const;

    /** Removes and returns the next call that was not delivered; nothing when there is none. */
    std::optional<LifecycleEvent> TakeCall();

private:
    static Eina_Bool s_OnTurn(void* data);
    void m_Arm();
    bool m_Empty() const { return m_windowEvents.empty() && m_calls.empty(); }
    LifecycleEvent m_TakeNext();

    Deliver m_deliver;
    std::deque<LifecycleEvent> m_windowEvents;
    std::deque<LifecycleEvent> m_calls;
    Ecore_Timer* m_turn = nullptr;
    bool m_started = false;
    bool m_firstTurn = true;
};

} // namespace veskar
