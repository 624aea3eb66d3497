#include "OneShotTimerCallback.h"

#include "Log.h"

#include <utility>

namespace VESKAR_APP
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr Clock::time_point NOT_ARMED{};

} // namespace

OneShotTimerCallback::OneShotTimerCallback(std::function<void()> callback)
    : m_callback(std::move(callback)), m_deadline(NOT_ARMED)
{
}

OneShotTimerCallback::~OneShotTimerCallback()
{
    CancelTimer();
}

void OneShotTimerCallback::StartTimer(unsigned int milliseconds)
{
    CancelTimer();
    LOG_DEBUG("milliseconds:" << milliseconds);
    // The new thread waits for the mutex, so it starts with the deadline set and the thread stored.
    std::lock_guard<std::mutex> lock(m_mutex);
    m_deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
    m_thread = std::thread(&OneShotTimerCallback::waitThread, this);
}

void OneShotTimerCallback::CancelTimer()
{
    LOG_ENTRY();
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_deadline = NOT_ARMED;
        m_condition.notify_one();
    }
    if (m_thread.joinable())
    {
        m_thread.join();
    }
}

bool OneShotTimerCallback::Expired()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_deadline != NOT_ARMED && Clock::now() >= m_deadline;
}

void OneShotTimerCallback::waitThread()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto remaining = std::chrono::duration_cast<std::chrono::milliseconds>(m_deadline - Clock::now());
    LOG_DEBUG("duration:" << static_cast<long long>(remaining.count()));
    while (m_deadline != NOT_ARMED && Clock::now() < m_deadline)
    {
        // A copy, because the wait reads it without the mutex, and CancelTimer may clear the field meanwhile.
        const Clock::time_point deadline = m_deadline;
        m_condition.wait_until(lock, deadline);
    }
    if (m_callback && m_deadline != NOT_ARMED)
    {
        LOG_DEBUG("timeout!");
        m_callback();
    }
}

} // namespace VESKAR_APP
