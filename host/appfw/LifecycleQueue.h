/** What is to be told to the application, one thing in each turn of the main loop. */
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
    /** What a request asks for; null for the other kinds. */
    std::unique_ptr<app_control_s> request;
    /** The call to reply to once the event is delivered; null where nobody waits. */
    BusMessage call;
};

/**
 * Two lines of events. What the application's own window did comes first, in its order: that is the consequence of
 * what was delivered before, and a later request must not overtake it. Calls from the bus come next, in theirs.
 *
 * The one exception is the start: the request that started the process comes before the resume of the window that the
 * create callback has shown.
 *
 * Events are delivered by a timer, at the beginning of a turn: in the turn in which the loop was told to end, nothing
 * is delivered any more, and what is left can be taken out for the next process.
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

    /** From now on events are delivered, until Stop; what is held already, first. */
    void Start();
    void Stop();

    /** Puts the calls of that sender before all others; each kind keeps its order. */
    void PutFirst(const std::string& sender);

    bool HoldsRequest() const;

    /** Takes out the calls that were not delivered, one at a time. */
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
