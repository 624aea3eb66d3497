// The number pad as a process: what it leaves behind, and what it survives.

#include "Tv.h"

class NumberPad : public TvTest
{
protected:
    Process Pin()
    {
        Process pin = Send({"--ui-id", "7", "pin", "--title", "PIN"});
        WaitForScreen(7);
        return pin;
    }

    std::string Command(const std::string& command)
    {
        return SendRaw({{"cmd", command}, {"type", std::string("number_zip")}}, PAD);
    }

    /** With the processes that it has started. */
    void Kill(const std::string& application)
    {
        const std::string pid = std::to_string(ApplicationPid(application));
        RunCommand({"sh", "-c", "kill -KILL " + pid + " $(cat /proc/" + pid + "/task/" + pid + "/children)"});
        EXPECT_TRUE(WaitUntil([&] { return ApplicationPid(application) == 0; }));
    }

    const std::string PAD = veskar::Applications::NUMBER_PAD;
};

TEST_F(NumberPad, HasOneWindowHoweverOftenItIsShown)
{
    const std::string talk = Environment("XDG_RUNTIME_DIR") + "/pad.log";
    Process pin = Pin(); // first: a pad that is not shown ends after a second
    Process pad({"sh", "-c", "WAYLAND_DEBUG=client exec " NUMBER_PAD_PROGRAM " 2>" + talk});
    ASSERT_TRUE(WaitUntil([this] { return ApplicationPid(PAD) != 0; }));
    std::string windows;
    for (int round = 0; round < 10; ++round)
    {
        EXPECT_EQ(Command("show"), "");
        EXPECT_TRUE(NumberPadIs("1"));
        EXPECT_FALSE(Grabs("veskar-numpad").empty());
        // Before anything else, for the time in which the compositor still tells the window its size.
        EXPECT_EQ(Command("hide"), "");
        EXPECT_TRUE(NumberPadIs("0"));
        const std::string now = RunCommand({"grep", "-c", "get_xdg_surface", talk});
        EXPECT_EQ(windows.empty() ? now : windows, now);
        windows = now;
    }
    EXPECT_EQ(pad.Status(), 0);
}

TEST_F(NumberPad, SurvivesTheEndOfTheScreenBelow)
{
    Process pad({NUMBER_PAD_PROGRAM});
    ASSERT_TRUE(WaitUntil([this] { return ApplicationPid(PAD) != 0; }));
    for (int round = 0; round < 6; ++round)
    {
        Process pin = Pin();
        EXPECT_EQ(Command("show"), "");
        EXPECT_TRUE(NumberPadIs("1"));
        if (round % 2 == 0)
        {
            Kill(veskar::Applications::DIALOGUES); // it cannot ask the pad to hide
        }
        else
        {
            Press({"Exit"});
        }
        EXPECT_TRUE(NumberPadIs("0"));
        EXPECT_TRUE(WaitUntil([this] { return Grabs("veskar-numpad").empty(); }));
    }
    EXPECT_EQ(pad.Status(), 0);
}

TEST_F(NumberPad, OpensAgainWhoeverWasKilledWhileItWasShown)
{
    Process first = Pin();
    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    Kill(veskar::Applications::DIALOGUES);
    Kill(PAD);
    Process second = Pin();
    Press({"More"});
    EXPECT_TRUE(WaitUntil([this] { return !Grabs("veskar-numpad").empty(); })) << "no pad opens";
    EXPECT_TRUE(NumberPadIs("1"));
    Kill(PAD);
    EXPECT_TRUE(NumberPadIs("0"));
}
