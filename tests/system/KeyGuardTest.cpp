// What a viewer cannot have meant for a screen does not reach it.

#include "Tv.h"

#include <csignal>

class KeyGuard : public TvTest
{
protected:
    void TearDown() override { SetDelay(200); }

    static void SetDelay(int milliseconds)
    {
        RunCommand({"veskar-setting", "set", "db/desk/key_guard", std::to_string(milliseconds)});
    }

    static void PressAtOnce(const Words& keys)
    {
        RunCommand(Words{"veskar-remote", "press", "--at-once", "--gap", "0"} + keys);
    }

    static Process Pin(int uiId, const std::string& title)
    {
        return Process({"veskar-mw", "--ui-id", std::to_string(uiId), "pin", "--title", title});
    }
};

TEST_F(KeyGuard, HoldsBackWhatDecidesUntilTheScreenHasBeenSeen)
{
    constexpr int LONG = 10'000;
    SetDelay(LONG);
    Process request = SendMessage(7, 255, {"--button", "OK"});
    PressAtOnce({"Return", "Back", "Exit"});
    WaitForScreen(7);
    PressAtOnce({"Return", "Back", "Exit"});
    Process press({"veskar-remote", "press", "--timeout", "0.3", "Return"});
    EXPECT_EQ(press.Status(), 3) << "held back, and the tool does not say so";
    EXPECT_FALSE(request.HasEnded());
    SetDelay(0);
    PressAtOnce({"Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 1, 0));
}

TEST_F(KeyGuard, LeavesTheRestOfAPinOutOfThePinThatReplacesIt)
{
    Process first = Pin(1, "PIN");
    Press({"1", "2"});
    const unsigned application = ApplicationPid();
    const std::string begun = "Start visible timer";
    const int before = CountInLog(begun);
    Process second = Pin(2, std::string(60'000, 'w')); // takes long to lay out
    ASSERT_TRUE(WaitUntil([&] { return CountInLog(begun) > before; }));
    kill(static_cast<pid_t>(application), SIGSTOP);
    PressAtOnce({"3", "4", "5", "6"});
    kill(static_cast<pid_t>(application), SIGCONT);
    EXPECT_EQ(first.Status(), 2);
    WaitForScreen(2);
    Press({"7", "8", "9", "0"});
    ExpectAnswer(second, Answer(2, 255, 0, 0, 0, "7890"));
}

TEST_F(KeyGuard, LetsAKeyThatIsHeldGoWithItsScreen)
{
    Process progress = Send({"--ui-id", "1", "progress", "--percent", "5"});
    WaitForScreen(1);
    SetDelay(0); // so that nothing else holds it back
    RunCommand({"veskar-remote", "down", "Return"});
    Process message = SendMessage(2, 255, {"--button", "OK"});
    EXPECT_EQ(progress.Status(), 2);
    // A key that is held begins to repeat after 0.4 s.
    EXPECT_FALSE(WaitUntil([&] { return message.HasEnded(); }, std::chrono::seconds(2)));
    RunCommand({"veskar-remote", "up", "Return"});
    EXPECT_FALSE(message.HasEnded());
    PressAtOnce({"Return"});
    ExpectAnswer(message, Answer(2, 255, 0, 1, 0));
}

TEST_F(KeyGuard, LetsAKeyThatIsHeldRepeatOnItsOwnScreen)
{
    Process list = Send({"--ui-id", "7", "select", "--entry", "a", "--entry", "b", "--entry", "c", "--entry", "d"});
    Press({"Down", "Down", "Down"});
    const Picture last = StillShot();
    Press({"Up", "Up", "Up"});
    EXPECT_NE(StillShot(), last);
    RunCommand({"veskar-remote", "down", "Down"});
    EXPECT_TRUE(WaitUntil([&] { return Shot() == last; })) << "it goes one row only";
    RunCommand({"veskar-remote", "up", "Down"});
    Press({"Return"});
    ExpectAnswer(list, Answer(7, 255, 0, 0, 4));
}

TEST_F(KeyGuard, HasTheToolSayWhatDoesNotCome)
{
    Process request = SendMessage(7, 255, {"--button", "OK"});
    WaitForScreen(7);
    for (const Words& waits : {Words{"--gone"}, Words{"--gone", "--ui-id", "7"}, Words{"--shown", "--ui-id", "8"}})
    {
        Process wait(Words{"veskar-remote", "wait", "--timeout", "0.1"} + waits);
        EXPECT_EQ(wait.Status(), 3) << waits.back();
    }
    RunCommand({"veskar-remote", "wait", "--gone", "--ui-id", "8"});
    Press({"Return"});
    RunCommand({"veskar-remote", "wait", "--gone"});
    Process nothing({"veskar-remote", "wait"});
    EXPECT_EQ(nothing.Status(), 64);
}
