#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace VESKAR_APP
{

/**
 * Calls a function once, a given time after the start, unless it is cancelled or started again first.
 *
 * StartTimer, CancelTimer and the destructor belong to one thread, the owner's. The callback runs on the timer's own
 * thread with the timer's mutex held. It must neither start nor cancel this timer, nor wait for a thread that does. A
 * callback that needs more posts it to the main loop, which checks Expired() before it acts.
 */
class OneShotTimerCallback
{
public:
    explicit OneShotTimerCallback(std::function<void()> callback);
    ~OneShotTimerCallback();

    OneShotTimerCallback(const OneShotTimerCallback&) = delete;
    OneShotTimerCallback& operator=(const OneShotTimerCallback&) = delete;

    /** Arms the timer and cancels its current run first. */
    void StartTimer(unsigned int milliseconds);

    /** Disarms the timer; returns when its thread has ended. */
    void CancelTimer();

    /** Whether the time is up and the timer was neither cancelled nor started again since. Any thread. */
    bool Expired();

private:
    void waitThread();

    std::function<void()> m_callback;
    std::chrono::steady_clock::time_point m_deadline;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_condition;
};

} // namespace VESKAR_APP
