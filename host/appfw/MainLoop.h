/** Waiting on the main thread while the main loop goes on. */
#pragma once

#include <Ecore.h>

namespace veskar
{

/**
 * To be called by what makes the condition of a TurnMainLoopUntil true: timers and messages of the bus are dealt with
 * just before the loop goes to sleep, and this keeps it from doing so.
 */
inline void WakeMainLoop()
{
    ecore_job_add([](void*) {}, nullptr);
}

/** Not for use inside an application's callback: whatever the loop brings is dealt with meanwhile. */
template <typename Done>
void TurnMainLoopUntil(Done done)
{
    while (!done())
    {
        ecore_main_loop_iterate_may_block(EINA_TRUE);
    }
}

/** The same, for so many seconds at most; whether it was done then. */
template <typename Done>
bool TurnMainLoopUntil(Done done, double seconds)
{
    bool expired = false;
    const auto expire = [](void* data) -> Eina_Bool
    {
        *static_cast<bool*>(data) = true;
        WakeMainLoop();
        return ECORE_CALLBACK_CANCEL;
    };
    auto* timer = ecore_timer_add(seconds, expire, &expired);
    TurnMainLoopUntil([&] { return done() || expired; });
    if (!expired)
    {
        ecore_timer_del(timer);
    }
    return done();
}

} // namespace veskar
