/**
 * Holds the toolkit's main loop while the toolkit is called, so that the calls are safe from any thread; on the main
 * loop's own thread the sections nest. Keep them short: toolkit calls only, no logging, no strings being built, no call
 * of another object of ours.
 */
#pragma once

#include <utility>

#include <Ecore.h>

namespace VESKAR_APP
{

/** Holds the main loop from its construction to the end of its scope, also when that is left by an exception. */
class MainLoopSection
{
public:
    MainLoopSection() { ecore_thread_main_loop_begin(); }
    ~MainLoopSection() { ecore_thread_main_loop_end(); }

    MainLoopSection(const MainLoopSection&) = delete;
    MainLoopSection& operator=(const MainLoopSection&) = delete;
};

/** One toolkit call inside a main-loop section of its own; gives back what the call gives. */
template <typename Function, typename... Arguments>
auto EFL_GUARD(Function* function, Arguments&&... arguments)
    -> decltype(function(std::forward<Arguments>(arguments)...))
{
    const MainLoopSection section;
    return function(std::forward<Arguments>(arguments)...);
}

/** For owners of what the toolkit hands out. */
template <auto Free>
struct GuardedFreeWith
{
    template <typename T>
    void operator()(T* handle) const
    {
        EFL_GUARD(Free, handle);
    }
};

} // namespace VESKAR_APP
