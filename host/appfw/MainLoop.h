/** Waits on the main thread while the main loop keeps running. */
#pragma once

#include <Ecore.h>

namespace veskar
{

/**
 * Must be called by the code that makes the condition of a TurnMainLoopUntil true. Timers and bus messages are handled
 * just before the loop goes to sleep; this keeps it awake, so that the condition is checked.
 */
inline void WakeMainLoop()
{
    ecore_job_add([](void*) {}, nullptr);
}

/** Not for use inside an application's callback, because the loop handles everything that arrives meanwhile. */
template <typename Done>
void TurnMainLoopUntil(Done done)
{
    while (!done())
    {
        ecore_main_loop_iterate_may_block(EINA_TRUE);
    }
}

/** The same, but for so many seconds at most. Returns whether the condition became true. */
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
