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
                                               Called();
                                           }};

    void Called()
    {
        thread = std::this_thread::get_id();
        calledAt = Clock::now();
        ++calls;
    }
    bool IsCalled()
    {
        for (int i = 0; i < 5000 && calls == 0; ++i)
        {
            std::this_thread::sleep_for(1ms);
        }
        return calls != 0;
    }
};

TEST_F(OneShotTimerCallbackTest, CallsOnceOnAThreadOfItsOwnAfterTheTimeOfTheLastStart)
{
    timer.StartTimer(60000);
    EXPECT_FALSE(timer.Expired());
    for (const int time : {0, 50}) // before an expiry, and after one
    {
        calls = 0;
        const auto start = Clock::now();
        timer.StartTimer(static_cast<unsigned>(time));
        ASSERT_TRUE(IsCalled());
        EXPECT_GE(calledAt.load() - start, std::chrono::milliseconds(time));
        EXPECT_TRUE(timer.Expired());
    }
    std::this_thread::sleep_for(20ms);
    timer.CancelTimer();
    EXPECT_EQ(calls, 1);
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(OneShotTimerCallbackTest, ACancelledDestroyedOrEmptyTimerCallsNothingAndDoesNotWait)
{
    const auto start = Clock::now();
    timer.CancelTimer(); // an idle one too
    timer.StartTimer(60000);
    timer.CancelTimer();
    EXPECT_FALSE(timer.Expired());
    {
        VESKAR_APP::OneShotTimerCallback doomed([this] { Called(); });
        doomed.StartTimer(60000);
        VESKAR_APP::OneShotTimerCallback empty(nullptr);
        empty.StartTimer(0);
        std::this_thread::sleep_for(20ms);
    }
    EXPECT_LT(Clock::now() - start, 30s);
    EXPECT_EQ(calls, 0);
}

} // namespace
