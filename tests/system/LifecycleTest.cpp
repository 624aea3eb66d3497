// The application's life on the TV: start, pause, resume, the two time-outs and the end.

#include "TimeOuts.h"
#include "Tv.h"

#include <random>
#include <thread>

using Lifecycle = TvTest;

TEST_F(Lifecycle, AScreenThatIsReplacedIgnoresItsPauseAndOneThatIsAnsweredDoesNot)
{
    Process first = SendMessage(7, 255, {"--button", "OK"});
    ASSERT_TRUE(WaitUntil([this] { return CountInLog("Finishing resume callback!") == 1; }));
    Process second = SendMessage(8, 255, {"--button", "OK"});
    ASSERT_TRUE(WaitUntil([this] { return CountInLog("Finishing resume callback!") == 2; }));
    EXPECT_EQ(CountInLog("Ignore pause!"), 1);
    EXPECT_EQ(CountInLog("Finishing pause callback!"), 0);

    Press({"Return"});
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("Finishing pause callback!") == 1; }));
    EXPECT_EQ(CountInLog("Ignore pause!"), 1);
}

TEST_F(Lifecycle, TheProcessEndsByItselfAfterAnAnswerAndTheNextRequestStartsANewOne)
{
    Process first = SendMessage(7, 255, {"--button", "OK"});
    const unsigned firstPid = ApplicationPid();
    Press({"Return"});
    EXPECT_EQ(first.Status(), 0);
    EXPECT_TRUE(WaitForApplicationEnd());
    EXPECT_EQ(CountInLog("Idle timeout, exit"), 1);

    Process second = SendMessage(8, 255, {"--button", "OK"});
    EXPECT_NE(ApplicationPid(), firstPid);
    Press({"Return"});
    ExpectAnswer(second, Answer(8, 255, 0, 1, 0));
}

TEST_F(Lifecycle, TerminateAnswersTheScreenThatIsShown)
{
    Process request = SendMessage(7, 255, {"--button", "OK"});
    EndApplication();
    ExpectAnswer(request, Answer(7, 255, 2, 0, 0));
    EXPECT_EQ(CountInLog("Finishing terminate callback!"), 1);
}

TEST_F(Lifecycle, AProcessThatDiesWithAScreenShownIsToldAtOnceAndTheNextRequestStartsAnother)
{
    constexpr std::chrono::seconds AT_ONCE{2};
    const std::string died = "ended without an answer, for which 1 waited";
    Process request = SendMessage(7, 254, {"--button", "OK"});
    StillShot();
    const auto pid = static_cast<pid_t>(ApplicationPid());
    ASSERT_GT(pid, 0);
    kill(pid, SIGKILL);
    EXPECT_EQ(request.Status(AT_ONCE), 69);
    EXPECT_EQ(request.Output(), "");
    EXPECT_EQ(CountInLog(died), 1);

    Process next = SendMessage(7, 254, {"--button", "OK"});
    Press({"Return"});
    ExpectAnswer(next, Answer(7, 254, 0, 1, 0));
    EndApplication();
    EXPECT_EQ(CountInLog(died), 1) << "it was answered before it ended";
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

TEST_F(Lifecycle, ATestCaseShowsItsScreenAndIsNeverAnswered)
{
    Process application({VESKAR_APPLICATION_PROGRAM, "1"});
    ASSERT_TRUE(WaitUntil([this] { return Grabs().count("Return") == 1; }));
    Press({"Back"});
    EXPECT_FALSE(Grabs().empty());
    EndApplication();
    EXPECT_EQ(application.Status(), 0);
    EXPECT_EQ(CountInLog("SendResponse"), 0);
}

/** With an application whose time-outs are short, so that no test takes half a minute. */
class TimeOuts : public TvTest
{
protected:
    const std::chrono::milliseconds VISIBLE{VESKAR_APP::VISIBLE_TIMEOUT};
    const std::chrono::milliseconds IDLE{VESKAR_APP::IDLE_TIMEOUT};

    /** Whether the same process still runs after `time` without any event. */
    bool OutlivesFor(std::chrono::milliseconds time)
    {
        const unsigned pid = ApplicationPid();
        return !WaitUntil([this, pid] { return !IsApplicationRunning() || ApplicationPid() != pid; }, time);
    }
};

TEST_F(TimeOuts, AScreenThatNobodyAnswersEndsTheProcessAndIsAnsweredAsClosed)
{
    Process request = SendMessage(7, 255, {"--button", "OK"});
    ExpectAnswer(request, Answer(7, 255, 2, 0, 0));
    EXPECT_TRUE(WaitForApplicationEnd());
    EXPECT_EQ(CountInLog("Visible timeout, exit"), 1);
}

TEST_F(TimeOuts, AKeyStartsTheClockAgain)
{
    Process request = SendMessage(7, 255, {"--button", "OK", "--button", "No"});
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(OutlivesFor(VISIBLE * 2 / 3));
        Press({"Right"});
    }
    EXPECT_EQ(request.Status(), 2);
}

TEST_F(TimeOuts, APrivilegedScreenAndOneThatMustNotCloseNeverStartTheClock)
{
    Process privileged = SendMessage(7, 254, {"--button", "OK"});
    EXPECT_TRUE(OutlivesFor(VISIBLE * 5 / 4));
    EndApplication();
    Process staying = SendMessage(8, 255, {"--button", "OK", "--no-close"});
    EXPECT_TRUE(OutlivesFor(VISIBLE * 5 / 4));
    EXPECT_FALSE(staying.HasEnded());
}

TEST_F(TimeOuts, ARequestWithinTheIdleTimeKeepsTheProcess)
{
    Process first = SendMessage(7, 255, {"--button", "OK"});
    const unsigned pid = ApplicationPid();
    Press({"Return"});
    ASSERT_TRUE(WaitUntil([this] { return CountInLog("Finishing pause callback!") == 1; }));
    Process second = SendMessage(8, 254, {"--button", "OK"});
    EXPECT_TRUE(OutlivesFor(IDLE * 2));
    EXPECT_EQ(ApplicationPid(), pid);
}

TEST_F(TimeOuts, NoRequestIsLostAroundTheEndOfTheProcess)
{
    constexpr int ROUNDS = 80;
    std::minstd_rand random(20261121);
    // Around the end of the idle time after an answer, from well before it to a little after it.
    std::uniform_int_distribution<long> moment(IDLE.count() - 40, IDLE.count() + 60);
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
