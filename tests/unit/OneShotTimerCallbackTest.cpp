#include "OneShotTimerCallback.h"
#include "Screen.h"

#include <atomic>
#include <chrono>
#include <thread>

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

struct OneShotTimerCallbackTest : TvTest
{
    std::atomic<int> calls{0};
    std::atomic<Clock::time_point> calledAt{};
    std::thread::id thread;
    VESKAR_APP::OneShotTimerCallback timer{[this]
                                           {
                                               thread = std::this_thread::get_id();
                                               calledAt = Clock::now();
                                               ++calls;
                                           }};

    bool IsCalledWithin(Clock::duration time)
    {
        const auto until = Clock::now() + time;
        while (calls == 0 && Clock::now() < until)
        {
            std::this_thread::sleep_for(1ms);
        }
        return calls != 0;
    }
};

TEST_F(OneShotTimerCallbackTest, CallsOnceOnAThreadOfItsOwnAfterTheTime)
{
    const auto start = Clock::now();
    timer.StartTimer(40);
    EXPECT_FALSE(timer.Expired());
    ASSERT_TRUE(IsCalledWithin(5s));
    EXPECT_GE(calledAt.load() - start, 40ms);
    EXPECT_TRUE(timer.Expired());
    std::this_thread::sleep_for(60ms);
    timer.CancelTimer();
    EXPECT_EQ(calls, 1);
    EXPECT_NE(thread, std::this_thread::get_id());
    EXPECT_TRUE(tv.Logged(DLOG_DEBUG, "milliseconds:40"));
    EXPECT_TRUE(tv.Logged(DLOG_DEBUG, "timeout!"));
}

TEST_F(OneShotTimerCallbackTest, FiresAtOnceWithNoTimeAndNeverWithoutACallback)
{
    timer.StartTimer(0);
    EXPECT_TRUE(IsCalledWithin(5s));
    tv.Forget();
    VESKAR_APP::OneShotTimerCallback silent(nullptr);
    silent.StartTimer(0);
    std::this_thread::sleep_for(20ms);
    silent.CancelTimer();
    EXPECT_FALSE(tv.Logged(DLOG_DEBUG, "timeout!"));
}

TEST_F(OneShotTimerCallbackTest, ARestartBeginsTheTimeAnew)
{
    timer.StartTimer(10);
    ASSERT_TRUE(IsCalledWithin(5s));
    timer.StartTimer(60000); // after an expiry as well as before one
    EXPECT_FALSE(timer.Expired());
    const auto restart = Clock::now();
    timer.StartTimer(100);
    calls = 0;
    ASSERT_TRUE(IsCalledWithin(5s));
    EXPECT_GE(calledAt.load() - restart, 100ms);
    EXPECT_LT(calledAt.load() - restart, 30s);
}

TEST_F(OneShotTimerCallbackTest, ACancelledOrDestroyedTimerCallsNothingAndDoesNotWait)
{
    const auto start = Clock::now();
    timer.CancelTimer(); // an idle one too
    timer.StartTimer(60000);
    timer.CancelTimer();
    timer.StartTimer(10);
    timer.CancelTimer();
    EXPECT_FALSE(timer.Expired());
    {
        VESKAR_APP::OneShotTimerCallback doomed([this] { ++calls; });
        doomed.StartTimer(60000);
    }
    EXPECT_LT(Clock::now() - start, 10s);
    std::this_thread::sleep_for(30ms);
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(tv.Logged(DLOG_DEBUG, "timeout!"));
}

} // namespace
