// The other kinds of screen, as far as they need a whole TV.

#include "Tv.h"

#include <fstream>
#include <regex>
#include <sstream>

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
    /** What the toolkit complains of to its end. */
    void TearDown() override
    {
        EndApplication();
        EXPECT_EQ(CountInLog("CRI<") + CountInLog("non-smart object"), 0);
    }

    /** A screen of this kind with id 7 of the normal source. */
    Process SendKind(const std::string& kind, const Words& values)
    {
        return Send(Words{"--ui-id", "7", kind} + values);
    }

    /** These keys end a screen of this kind with this answer. */
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
};

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

TEST_F(Screens, ListOfManyRowsKeepsTheFocusedOneAndTheNextInView)
{
    const auto eighthOf = [&](const std::string& ninth)
    {
        Process list = SendKind("list", Rows(8) + Words{"--entry", ninth, "--entry", "Row 10"});
        StillShot();
        Press(Words(7, "Down"));
        return StillShot();
    };
    EXPECT_NE(eighthOf("One"), eighthOf("Another")) << "the row after the focused one is out of view";
}

TEST_F(Screens, LogNoErrorButThoseThatTheDocumentsName)
{
    const Words button{"--button", "OK"};
    ExpectKeysAnswer("message", button, {"Return"}, Answer(7, 255, 0, 1, 0));
    ExpectKeysAnswer("list", Rows(2) + button, {"Down", "Down", "Return"}, Answer(7, 255, 0, 1, 0));
    ExpectKeysAnswer("progress", button, {"Return"}, Answer(7, 255, 0, 1, 0));
    ExpectKeysAnswer("pin", {}, {"Back"}, Answer(7, 255, 3, 0, 0));
    EndApplication();
    const std::regex errorLine("^VESKAR-APP E (?!TextStyle.*Failed to read|LineCount.*Get layout failed|"
                               "MenuList.*mfocus set to zero|main.cpp: main\\(\\d+\\) > $)");
    std::istringstream log(Log());
    for (std::string line; std::getline(log, line);)
    {
        EXPECT_FALSE(std::regex_search(line, errorLine)) << line;
    }
}

TEST_F(Screens, PinTakesTheDigitsOfTheNumberPad)
{
    Process request = SendKind("pin", {"--title", "PIN"});
    const Picture without = StillShot();
    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    ChangedShot(without);
    RunCommand({"veskar-remote", "down", "Return"});
    // A key that is held begins to repeat after 0.4 s; the pad types its digit once.
    EXPECT_FALSE(WaitUntil([&] { return request.HasEnded(); }, std::chrono::seconds(2)));
    RunCommand({"veskar-remote", "up", "Return"});
    // From the 1 to the 2, past the 0 to the key that deletes the 2, and up to the 9; a 7 is pressed on the remote.
    Press({"Right", "Return", "Down", "Down", "Down", "Right", "Return", "Up", "Return", "7", "Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 0, 0, "1979"));
    EXPECT_EQ(CountInLog("1979"), 0) << "the log shows a PIN";
    EXPECT_TRUE(NumberPadIs("0"));
    EXPECT_TRUE(WaitUntil([this] { return Grabs("veskar-numpad").empty(); }));
}

TEST_F(Screens, PinStaysWhenTheNumberPadGoesWhichAloneShowsAFocus)
{
    Process request = SendKind("pin", {"--title", "PIN"});
    const Picture without = StillShot();
    Press({"More"});
    ASSERT_TRUE(NumberPadIs("1"));
    Press({"Back"});
    EXPECT_TRUE(NumberPadIs("0"));
    EXPECT_TRUE(WaitUntil([&] { return Shot() == without; })) << "the pad is still there";

    RunCommand({"veskar-setting", "set", PAD_SHOWN, "1"});
    ChangedShot(without);
    RunCommand({"veskar-setting", "set", PAD_SHOWN, "0"});
    EXPECT_TRUE(WaitUntil([&] { return Shot() == without; }));
    EXPECT_FALSE(request.HasEnded());
}

TEST_F(Screens, ImageOfEnormousSizeGivesItsMemoryBack)
{
    const Words small{"--title", "Logo", "--button", "OK"};
    Process before = SendKind("image", small);
    const Picture usualShot = StillShot();
    const long usual = ResidentMemory(ApplicationPid());
    constexpr std::size_t SIDE = 8000;
    const std::string file = Environment("XDG_RUNTIME_DIR") + "/enormous.pgm";
    std::ofstream(file) << "P5\n" << SIDE << ' ' << SIDE << "\n255\n" << std::string(SIDE * SIDE, 'Z') << std::flush;
    Process request = SendKind("image", {"--width", "8000", "--height", "8000", "--image", file});
    ChangedShot(usualShot);
    ExpectKeysAnswer("image", small, {"Return"}, Answer(7, 255, 0, 1, 0));
    EXPECT_TRUE(WaitUntil([&] { return ResidentMemory(ApplicationPid()) < usual + 100; }))
        << "from " << usual << " to " << ResidentMemory(ApplicationPid()) << " MiB";
    std::remove(file.c_str());
}
