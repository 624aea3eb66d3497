// The frame, its timers and the main loop are the real ones; only the times are short.

#include "Frame.h"
#include "TimeOuts.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <random>
#include <thread>

// The linker uses these times and not those in the application's library.
const unsigned int VESKAR_APP::VISIBLE_TIMEOUT = 4;
const unsigned int VESKAR_APP::IDLE_TIMEOUT = 2;

namespace
{

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto VISIBLE = std::chrono::milliseconds(VESKAR_APP::VISIBLE_TIMEOUT);
constexpr auto IDLE = std::chrono::milliseconds(VESKAR_APP::IDLE_TIMEOUT);

/** Does to the frame what the platform and the viewer do, and remembers which clocks must be running. */
struct TimeOutTest : Frame
{
    std::optional<Clock::time_point> idleSince;
    std::optional<Clock::time_point> visibleSince;
    bool ignoresPause = false;
    bool isPrivileged = false;

    TimeOutTest()
    {
        Run([] { Create(); });
    }

    void Request(bool privileged)
    {
        idleSince.reset();
        if (!privileged)
        {
            visibleSince = Clock::now();
        }
        ignoresPause = true;
        isPrivileged = privileged;
        ShowMessage("7", privileged ? "254" : "255");
    }
    void Key()
    {
        const std::vector<Evas_Object*> popups = WidgetsOnScreen(tv.window, "elm_popup");
        if (popups.empty())
        {
            return;
        }
        if (!isPrivileged)
        {
            visibleSince = Clock::now();
        }
        Press(popups.front(), "Return");
    }
    void LeaveScreen()
    {
        const auto before = Clock::now();
        Pause();
        if (!ignoresPause)
        {
            idleSince = before;
            isPrivileged = false;
        }
    }
    void ComeBack()
    {
        Resume();
        ignoresPause = false;
    }
    void End()
    {
        Terminate();
        isPrivileged = false;
    }

    /**
     * Runs the loop for at most this time; whether a clock ended it. It is a failure when the loop ends before a clock
     * has run out.
     */
    bool EndsWithin(std::chrono::duration<double> time)
    {
        tv.Forget();
        const bool ended = LoopEnds(time.count());
        const auto now = Clock::now();
        const bool idle = tv.Logged(DLOG_INFO, "Idle timeout, exit");
        const bool visible = tv.Logged(DLOG_INFO, "Visible timeout, exit");
        EXPECT_TRUE(!ended || idle || visible);
        EXPECT_TRUE(!idle || (idleSince && now - *idleSince >= IDLE));
        EXPECT_TRUE(!visible || (visibleSince && now - *visibleSince >= VISIBLE));
        return idle || visible; // the time may have run out in the same turn of the loop
    }
    bool Ends()
    {
        const auto start = Clock::now();
        return EndsWithin(10s) && Clock::now() - start < 9s;
    }
};

TEST_F(TimeOutTest, EachClockEndsTheLoopAndTheScreenIsAnsweredByTerminate)
{
    Request(false);
    EXPECT_TRUE(Ends());
    EXPECT_THAT(tv.Log(DLOG_INFO), testing::Contains("VisibleTimeout: m_uiId:7, m_sourceId:255"));
    EXPECT_THAT(tv.Did("answer"), testing::IsEmpty());
    End();
    EXPECT_THAT(tv.Did("answer"), testing::ElementsAre("answer 7 255 2 0 0 \"\""));

    Request(true);
    ComeBack();
    LeaveScreen();
    EXPECT_TRUE(Ends());
    EXPECT_THAT(tv.Log(DLOG_INFO), testing::Contains("IdleTimeout: m_uiId:0, m_sourceId:100"));
}

TEST_F(TimeOutTest, ThousandsOfExpiriesMeetRequestsKeysPausesAndTerminate)
{
    constexpr int STEPS = 2500;
    std::mt19937 random(20240607);
    const auto below = [&random](std::size_t limit)
    {
        return static_cast<int>(random() % limit);
    };
    const std::function<void()> steps[] = {
        [this] { Request(true); }, [this] { Request(false); }, [this] { Key(); },         [this] { End(); },
        [this] { ComeBack(); },    [this] { ComeBack(); },     [this] { LeaveScreen(); }, [this] { LeaveScreen(); },
    };
    int ends = 0;
    for (int step = 0; step < STEPS; ++step)
    {
        steps[below(std::size(steps))]();
        // For half of the time the clocks run and the loop does not.
        const auto pause = std::chrono::microseconds(below(2500));
        if (below(2) == 0)
        {
            std::this_thread::sleep_for(pause);
        }
        else
        {
            ends += EndsWithin(pause) ? 1 : 0;
        }
    }
    EXPECT_GT(ends, STEPS / 20);
    Request(false); // and the clocks still run
    EXPECT_TRUE(Ends());
}

} // namespace
