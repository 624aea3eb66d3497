// The application's life on the TV: start, pause, resume, the two time-outs and the end.

#include "TimeOuts.h"
#include "Tv.h"

#include <random>
#include <thread>

using Lifecycle = TvTest;

TEST_F(Lifecycle, AProcessThatDiesWithAScreenShownIsToldAtOnce)
{
    constexpr std::chrono::seconds AT_ONCE{2};
    Process request = SendMessage(7, 254, {"--button", "OK"});
    StillShot();
    const auto pid = static_cast<pid_t>(ApplicationPid());
    ASSERT_GT(pid, 0);
    kill(pid, SIGKILL);
    EXPECT_EQ(request.Status(AT_ONCE), 69);
    EXPECT_EQ(request.Output(), "");
    EXPECT_EQ(CountInLog("ended without an answer, for which 1 waited"), 1);
}

TEST_F(Lifecycle, ASecondInstanceDrawsNothingAndSaysSo)
{
    Process request = SendMessage(7, 255, {"--button", "OK"});
    const Picture shown = StillShot();
    Process second({VESKAR_APPLICATION_PROGRAM, "1"});
    EXPECT_EQ(second.Status(), 256 - 114);
    EXPECT_TRUE(StillShot() == shown);
    Press({"Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 1, 0));
}

/** With an application whose time-outs are short, so that no test takes half a minute. */
using TimeOuts = TvTest;

TEST_F(TimeOuts, NoRequestIsLostAroundTheEndOfTheProcess)
{
    constexpr int ROUNDS = 80;
    std::minstd_rand random(20261121);
    // Around the end of the idle time after an answer, from well before it to a little after it.
    std::uniform_int_distribution<long> moment(VESKAR_APP::IDLE_TIMEOUT - 40, VESKAR_APP::IDLE_TIMEOUT + 60);
    for (int round = 1; round <= ROUNDS; ++round)
    {
        Process request = SendMessage(round, 255, {"--button", "OK"});
        Press({"Return"});
        ExpectAnswer(request, Answer(round, 255, 0, 1, 0));
        ASSERT_FALSE(HasFailure()) << "round " << round;
        std::this_thread::sleep_for(std::chrono::milliseconds(moment(random)));
    }
    EXPECT_GT(CountInLog("Idle timeout, exit"), ROUNDS / 4) << "the rounds did not meet the end of the process";
}
