// Every other kind of screen: each answer that it can give, and no answer where there is none.

#include "Tv.h"

#include <csignal>
#include <fstream>

namespace
{

Words Rows(int count)
{
    Words arguments;
    for (int row = 1; row <= count; ++row)
    {
        arguments.insert(arguments.end(), {"--entry", "Row " + std::to_string(row)});
    }
    return arguments;
}

/** A picture of one grey, in the TV's own folder. */
std::string GreyImage(const std::string& name, int side, unsigned char grey)
{
    std::string path = Environment("XDG_RUNTIME_DIR") + "/" + name + ".pgm";
    std::ofstream file(path, std::ios::binary);
    file << "P5\n" << side << ' ' << side << "\n255\n";
    std::fill_n(std::ostreambuf_iterator<char>(file), static_cast<std::size_t>(side) * side, static_cast<char>(grey));
    return path;
}

/** The memory that a process holds, in MiB; a page has 4 KiB. */
long ResidentMemory(unsigned pid)
{
    long pages = 0;
    std::ifstream("/proc/" + std::to_string(pid) + "/statm") >> pages >> pages;
    return pages * 4 / 1024;
}

} // namespace

class Screens : public TvTest
{
protected:
    /** A screen of this kind with id 7 of the normal source. */
    Process SendKind(const std::string& kind, const Words& values)
    {
        return Send(Words{"--ui-id", "7", kind} + values);
    }

    /** Each of these keys ends a screen of this kind with this answer. */
    void ExpectKeysAnswer(const std::string& kind, const Words& values, const Words& keys, const std::string& answer)
    {
        SCOPED_TRACE(kind);
        const Picture before = Shot();
        Process request = SendKind(kind, values);
        WaitForScreen(7);
        EXPECT_TRUE(Shot() != before) << "nothing is shown";
        Press(keys);
        ExpectAnswer(request, answer);
    }

    void ExpectBackAndExit(const std::string& kind, const Words& values)
    {
        ExpectKeysAnswer(kind, values, {"Back"}, Answer(7, 255, 3, 0, 0));
        ExpectKeysAnswer(kind, values, {"Exit"}, Answer(7, 255, 2, 0, 0));
    }

    /** Closed by the middleware, and replaced by another screen. */
    void ExpectCloseAndReplace(const std::string& kind, const Words& values)
    {
        Process closed = SendKind(kind, values);
        Send({"--ui-id", "7", "close"});
        ExpectAnswer(closed, Answer(7, 255, 2, 0, 0));

        Process replaced = SendKind(kind, values);
        Process message = SendMessage(8, 255, {"--button", "OK"});
        EXPECT_EQ(replaced.Status(), 2) << kind;
        Press({"Return"});
        ExpectAnswer(message, Answer(8, 255, 0, 1, 0));
    }

    void ExpectSilence(Process& request, const Words& keys)
    {
        Press(keys);
        StillShot();
        EXPECT_FALSE(request.HasEnded());
    }
};

TEST_F(Screens, SelectAnswersTheToolkitsIndexOfThePressedRow)
{
    ExpectKeysAnswer("select", Rows(5), {"Down", "Down", "Return"}, Answer(7, 255, 0, 0, 3));
    ExpectKeysAnswer("select", Rows(5), {"Return"}, Answer(7, 255, 0, 0, 1));
    ExpectKeysAnswer("select", Rows(1), {"Return"}, Answer(7, 255, 0, 0, 1));
    ExpectKeysAnswer("select", Rows(5) + Words{"--header"}, {"Down", "Return"}, Answer(7, 255, 0, 0, 2));
    ExpectBackAndExit("select", Rows(5));
    ExpectCloseAndReplace("select", Rows(5));
}

TEST_F(Screens, SelectBeginsOnItsFirstRowWhateverTheRowsAndTheScreenBefore)
{
    const Words rows{"--format", "L", "--entry", "one", "--entry", std::string(240, 'n'), "--entry", "three"};
    Process message = SendMessage(8, 255, {"--button", "OK"});
    StillShot();
    ExpectKeysAnswer("select", rows, {"Return"}, Answer(7, 255, 0, 0, 1));
    EXPECT_EQ(message.Status(), 2);
    Process list = SendKind("select", Rows(3));
    StillShot();
    ExpectKeysAnswer("select", rows, {"Down", "Return"}, Answer(7, 255, 0, 0, 2));
    EXPECT_EQ(list.Status(), 2);
}

TEST_F(Screens, SelectGoesOnFromARowHigherThanTheListAfterItsEnd)
{
    const Words rows{"--entry", "One", "--entry", std::string(3000, 'n'), "--entry", "Three"};
    ExpectKeysAnswer("select", rows, {"Down", "Down", "Return"}, Answer(7, 255, 0, 0, 2));
    ExpectKeysAnswer("select", rows, Words(9, "Down") + Words{"Return"}, Answer(7, 255, 0, 0, 3));
    ExpectKeysAnswer("select", rows, Words(9, "Down") + Words{"Up", "Up", "Return"}, Answer(7, 255, 0, 0, 2));
    ExpectKeysAnswer("select", rows, Words(9, "Down") + Words(9, "Up") + Words{"Return"}, Answer(7, 255, 0, 0, 1));
}

TEST_F(Screens, ListSaysNothingOfAPressedRow)
{
    Process request = SendKind("list", Rows(5));
    ExpectSilence(request, {"Return", "Down", "Return"});
    Press({"Back"});
    ExpectAnswer(request, Answer(7, 255, 3, 0, 0));
    ExpectBackAndExit("list", Rows(5));
    ExpectCloseAndReplace("list", Rows(5));
}

TEST_F(Screens, ListOfManyRowsKeepsTheFocusedOneAndTheNextInView)
{
    Process request = SendKind("list", Rows(40));
    const Picture top = StillShot();
    Press(Words(39, "Down"));
    ChangedShot(top);
    Press(Words(39, "Up"));
    EXPECT_TRUE(WaitUntil([&] { return Shot() == top; })) << "the first row does not come back";

    const auto eighthOf = [&](const std::string& ninth)
    {
        Process list = SendKind("list", Rows(8) + Words{"--entry", ninth, "--entry", "Row 10"});
        StillShot();
        Press(Words(7, "Down"));
        return StillShot();
    };
    EXPECT_NE(eighthOf("One"), eighthOf("Another")) << "the row after the focused one is out of view";
}

TEST_F(Screens, MultiListAnswersTheMarkedRowsWithItsFirstButton)
{
    const Words values = Rows(4) + Words{"--button", "Delete", "--button", "Cancel"};
    const Words press{"Return"};
    const Words toButtons(4, "Down");
    ExpectKeysAnswer("multi-list", values, Words{"Return", "Down", "Down", "Return"} + toButtons + press,
                     Answer(7, 255, 0, 0, 0, "13"));
    ExpectKeysAnswer("multi-list", values, toButtons + press, Answer(7, 255, 0, 1, 0));
    ExpectKeysAnswer("multi-list", values, toButtons + Words{"Right", "Return"}, Answer(7, 255, 0, 2, 0));
    ExpectBackAndExit("multi-list", values);
    ExpectCloseAndReplace("multi-list", values);
}

TEST_F(Screens, PinArrivesAsTypedAndCorrected)
{
    ExpectKeysAnswer("pin", {"--title", "PIN"}, {"1", "2", "BackSpace", "3", "4", "5"},
                     Answer(7, 255, 0, 0, 0, "1345"));
    ExpectBackAndExit("pin", {"--title", "PIN"});
    ExpectCloseAndReplace("pin", {"--title", "PIN"});
    EXPECT_EQ(CountInLog("1345"), 0) << "the log shows a PIN";
}

TEST_F(Screens, PinTakesTheDigitsOfTheNumberPad)
{
    Process request = SendKind("pin", {"--title", "PIN"});
    const Picture without = StillShot();
    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    ChangedShot(without);
    // From the 1 to the 2, past the 0 to the key that deletes the 2, and up to the 9; a 7 is pressed on the remote.
    Press({"Return", "Right", "Return", "Down", "Down", "Down", "Right", "Return", "Up", "Return", "7", "Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 0, 0, "1979"));
    EXPECT_TRUE(NumberPadIs("0"));
    EXPECT_TRUE(WaitUntil([this] { return Grabs("veskar-numpad").empty(); }));
}

TEST_F(Screens, PinStaysWhenTheNumberPadGoesAndDoesWithoutWhereThereIsNone)
{
    constexpr const char* FEATURE = "com.brelmon/featureconf/bt_profile_bt_smart_control";
    Process request = SendKind("pin", {"--title", "PIN"});
    const Picture without = StillShot();
    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    Press({"Back"});
    EXPECT_TRUE(NumberPadIs("0"));
    EXPECT_TRUE(WaitUntil([&] { return Shot() == without; })) << "the pad is still there";

    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    EXPECT_FALSE(Grabs("veskar-numpad").empty());
    kill(static_cast<pid_t>(ApplicationPid("org.tizen.function-osd")), SIGKILL);
    EXPECT_TRUE(NumberPadIs("0")) << "nobody noticed that the pad was killed";

    RunCommand({"veskar-setting", "set", FEATURE, "0"});
    Press({"More"});
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("Numpad not supported") == 1; }));
    RunCommand({"veskar-setting", "set", FEATURE, "1"});
    EXPECT_EQ(StillShot(), without);
    EXPECT_TRUE(Grabs("veskar-numpad").empty());
    RunCommand({"veskar-setting", "set", PAD_SHOWN, "1"});
    ChangedShot(without); // only the pad shows a focus
    RunCommand({"veskar-setting", "set", PAD_SHOWN, "0"});
    EXPECT_TRUE(WaitUntil([&] { return Shot() == without; }));
    EXPECT_FALSE(request.HasEnded());

    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    Press({"Exit"});
    ExpectAnswer(request, Answer(7, 255, 2, 0, 0));
    EXPECT_TRUE(NumberPadIs("0"));
}

TEST_F(Screens, NumberPadGoesWithTheProcessOfItsScreen)
{
    const Process request = SendKind("pin", {"--title", "PIN"});
    StillShot();
    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    EXPECT_FALSE(Grabs("veskar-numpad").empty());
    kill(static_cast<pid_t>(ApplicationPid()), SIGKILL);
    EXPECT_TRUE(NumberPadIs("0"));
    EXPECT_TRUE(WaitUntil([this] { return Grabs("veskar-numpad").empty(); }));
}

TEST_F(Screens, ProgressUpdatesInPlaceAndAnswersItsButtonAlone)
{
    Process request = SendKind("progress", {"--title", "Scan", "--percent", "0", "--button", "Cancel"});
    Picture before = StillShot();
    for (int percent = 10; percent <= 100; percent += 10)
    {
        Process update = Send({"--ui-id", "7", "--no-wait", "progress", "--title", "Scan", "--percent",
                               std::to_string(percent), "--button", "Cancel"});
        EXPECT_EQ(update.Status(), 0);
        before = ChangedShot(before);
    }
    EXPECT_EQ(CountInLog("Updated exiting progress"), 10);
    EXPECT_EQ(CountInLog("Start visible timer"), 1);
    EXPECT_EQ(CountInLog("Finishing pause callback!") + CountInLog("Ignore pause!"), 0) << "the window was hidden";
    ExpectSilence(request, {"Back", "Exit"});
    Press({"Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 1, 0));
    ExpectCloseAndReplace("progress", {"--title", "Scan", "--percent", "5"});
}

TEST_F(Screens, ProgressShowsATextThatTheToolkitAloneWouldBreakIntoLinesForEver)
{
    // A combining mark on a space.
    ExpectCloseAndReplace("progress", {"--text", u8"\u0663 \u20dd \u2003\u1680"});
}

TEST_F(Screens, LoadingAnswersItsButtonAlone)
{
    Process request = SendKind("loading", {"--text", "Please wait", "--button", "Cancel"});
    Press({"Back", "Exit"});
    EXPECT_FALSE(request.HasEnded());
    Press({"Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 1, 0));
    ExpectCloseAndReplace("loading", {"--text", "Please wait"});
}

TEST_F(Screens, ImageShowsItsTextsAndButtonsWhateverItsFileIs)
{
    const std::string notAnImage = Environment("XDG_RUNTIME_DIR") + "/text.png";
    std::ofstream(notAnImage) << "no image";
    for (const std::string& file : {std::string("/nowhere/at/all.png"), notAnImage})
    {
        const Words values{"--title", "Logo", "--image", file, "--width", "400", "--height", "300", "--button", "OK"};
        ExpectKeysAnswer("image", values, {"Return"}, Answer(7, 255, 0, 1, 0));
        EXPECT_EQ(CountInLog("Loading the image file has failed :" + file), 1);
    }
    ExpectBackAndExit("image", {"--title", "Logo"});
    ExpectCloseAndReplace("image", {"--title", "Logo"});
}

TEST_F(Screens, ImageOfEnormousSizeLeavesTheTextsTheirRoomAndGivesItsMemoryBack)
{
    Process before = SendKind("image", {"--title", "Logo", "--button", "OK"});
    Picture last = StillShot();
    const long usual = ResidentMemory(ApplicationPid());
    const std::string enormous = GreyImage("enormous", 8000, 90);
    const Words values{"--width", "8000",  "--height", "8000",     "--image", enormous,   "--title",
                       "Logo",    "--sub", "Sub",      "--bottom", "Bottom",  "--button", "OK"};
    Process request = SendKind("image", values);
    const Picture shown = last = ChangedShot(last);
    for (const std::size_t text : {7, 9, 11, 13})
    {
        Words others = values;
        others[text] = "other";
        Process other = SendKind("image", others);
        last = ChangedShot(last);
        EXPECT_FALSE(last == shown) << values[text] << " is not on the screen";
    }
    EXPECT_EQ(request.Status(), 2);
    ExpectKeysAnswer("image", {"--title", "Logo", "--button", "OK"}, {"Return"}, Answer(7, 255, 0, 1, 0));
    EXPECT_TRUE(WaitUntil([&] { return ResidentMemory(ApplicationPid()) < usual + 100; }))
        << "from " << usual << " to " << ResidentMemory(ApplicationPid()) << " MiB";
    std::remove(enormous.c_str());
}

TEST_F(Screens, ImageListFollowsTheRowAndAnswersIt)
{
    const Words values = Rows(3) + Words{"--image",  GreyImage("first", 400, 40),
                                         "--image",  GreyImage("second", 400, 120),
                                         "--image",  GreyImage("third", 400, 200),
                                         "--width",  "600",
                                         "--height", "400"};
    Process request = SendKind("image-list", values);
    const Picture first = StillShot();
    Press({"Down"});
    ChangedShot(first);
    Press({"Up"});
    EXPECT_TRUE(WaitUntil([&] { return Shot() == first; })) << "the first image does not come back";
    ExpectSilence(request, {"Back", "Exit"});
    Press({"Down", "Down", "Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 0, 3));
    ExpectCloseAndReplace("image-list", values);
}
