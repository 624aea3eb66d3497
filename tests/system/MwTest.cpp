/** `veskar-mw` and the daemon behind it, against an application that does what each test says. */
#include "FakeApplication.h"
#include "Tv.h"

using namespace veskar;

namespace
{

Process Mw(const Words& arguments)
{
    return Process(Words{"veskar-mw"} + arguments);
}

} // namespace

class MwTest : public TvTest
{
protected:
    void SetUp() override
    {
        TvTest::SetUp();
        m_application.Arrive();
    }

    /** A message that the application has handled and not yet answered. */
    Process Shown(int uiId, const char* kind = "message")
    {
        Process mw = Mw({"--ui-id", std::to_string(uiId), kind});
        m_application.Take();
        return mw;
    }

    FakeApplication m_application;
};

TEST_F(MwTest, AnswersArePrintedAndBecomeTheStatus)
{
    const std::map<int, int> statusOfKind{{0, 0}, {2, 2}, {3, 1}};
    for (const auto& [kind, status] : statusOfKind)
    {
        Process mw = Shown(7);
        m_application.Answer(7, 255, kind, 2, 250, "a \"b\"");
        EXPECT_EQ(mw.Status(), status);
        EXPECT_EQ(mw.Output(), Answer(7, 255, kind, 2, 250, R"(a \"b\")"));
    }
}

TEST_F(MwTest, TimeOutIsSaidAndTheLateAnswerIsNobodys)
{
    Process mw = Mw({"--timeout", "0.1", "message"});
    m_application.Take();
    EXPECT_EQ(mw.Status(), 3);
    EXPECT_EQ(mw.Output(), "");
    m_application.Answer(1, 255, 0, 1);
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("button 1, item 0, data 0 bytes; nobody waited") > 0; }));
}

TEST_F(MwTest, AnswerOfTheNextProcessMayOvertakeTheReplyOfTheLeavingOne)
{
    m_application.WhileHandling(
        [this]
        {
            m_application.Leave();
            m_application.Arrive();
            m_application.Answer(1, 255, 3);
        });
    EXPECT_EQ(Shown(1).Status(), 1);
}

TEST_F(MwTest, RequestThatGoesNowhereHasItsOwnStatus)
{
    m_application.WhileHandling([] { throw sdbus::Error("org.tizen.Error.Refused", "too long"); });
    EXPECT_EQ(Shown(1).Status(), 64) << "refused";
    m_application.Leave();
    EXPECT_EQ(Mw({"message"}).Status(), 69) << "no application";
    EXPECT_EQ(Process({"env", "DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere", "veskar-mw", "message"}).Status(), 69);
}

TEST_F(MwTest, BadUsageIsRefusedWithoutARequest)
{
    for (const std::string usage :
         {"", "bogus", "menu", "menu nowhere", "raw a", "raw a=1 a[]=2", "--source-id 256 message",
          "--ui-id 010 message", "--timeout 0 message", "--timeout nan message", "image --width 0x10",
          "image --height -1", "progress --percent 101", "progress --percent-from /nowhere",
          "--no-wait progress --percent-from -", "message --title $(printf '\\377')", "list --entries-from /nowhere",
          "list --entries-from /"})
    {
        Process mw({"sh", "-c", "veskar-mw " + usage});
        EXPECT_EQ(mw.Status(), 64) << usage;
        EXPECT_EQ(mw.Output(), "");
    }
    EXPECT_EQ(CountInLog("request \""), 0);
}

TEST_F(MwTest, RawWaitsForTheScreenWithTheIdsAmongItsValues)
{
    Process mw =
        Mw({"raw", "signal_type_key=signal_tvservice", "signal_tvservice_key=ui_type_message", "ui_param_ui_id= 42abc",
            "ui_param_source_id=510", "ui_param_buttons[]=A", "ui_param_buttons[]=B"});
    EXPECT_EQ(m_application.Take().at("ui_param_buttons").get<Words>(), (Words{"A", "B"}));
    m_application.Answer(42, 254, 3);
    EXPECT_EQ(mw.Status(), 1);
}

TEST_F(MwTest, ProgressFollowsTheLinesOfItsInputAndIsClosedAfterThem)
{
    Process mw({"sh", "-c",
                "cd $XDG_RUNTIME_DIR; printf '10\\n# Checking\\nnonsense\\n100' >lines; veskar-mw progress "
                "--percent-from lines"});
    EXPECT_EQ(m_application.Take().at("ui_param_percent").get<std::string>(), "0");
    const RequestData next = m_application.Take();
    EXPECT_EQ(next.at("ui_param_percent").get<std::string>(), "10");
    EXPECT_EQ(next.at("ui_param_txt").get<std::string>(), "Checking");
    EXPECT_EQ(m_application.Take().at("ui_param_percent").get<std::string>(), "100") << "a line without its end";
    EXPECT_EQ(m_application.Take().at("signal_tvservice_key").get<std::string>(), "ui_type_close");
    m_application.Answer(1, 255, Controller::Closed);
    EXPECT_EQ(mw.Status(), 0);
    EXPECT_EQ(mw.Output(), Answer(1, 255, Controller::Closed, 0, 0));
}

TEST_F(MwTest, ProgressThatIsAnsweredWhileItMovesOnIsNotShownAgain)
{
    Process mw({"sh", "-c", "echo 10 | veskar-mw progress --button Stop --percent-from -"});
    m_application.Take();
    m_application.WhileHandling([this] { m_application.Answer(1, 255, Controller::Answered, 1); });
    EXPECT_EQ(m_application.Take().at("ui_param_percent").get<std::string>(), "10");
    EXPECT_EQ(m_application.Take().at("signal_tvservice_key").get<std::string>(), "ui_type_close");
    EXPECT_EQ(mw.Status(), 0);
    EXPECT_THAT(mw.Output(), testing::HasSubstr(R"("label":"Stop")"));
}

TEST_F(MwTest, MenuTellsTheTaskAndThePositionOfItsOwnRequest)
{
    const auto asked = [this](const Words& arguments, const std::vector<int>& positions)
    {
        m_application.WhileHandling(
            [this, positions]
            {
                m_application.AskForTask("name:menu ", "stop");
                for (const int position : positions)
                {
                    m_application.OpenMenuPosition(position);
                }
            });
        Process mw = Mw(arguments);
        m_application.Take();
        EXPECT_EQ(mw.Status(), 0);
        return mw.Output();
    };
    const std::string task = "{\"task\":\"name:menu \",\"action\":\"stop\"}\n";
    EXPECT_EQ(asked({"--no-wait", "menu", "veskar_info"}, {0}), "");
    EXPECT_EQ(asked({"raw", "signal_type_key=signal_menu_pos", "menu_pos_key=nowhere"}, {}), task);
    m_application.OpenMenuPosition(0); // somebody else's
    EXPECT_EQ(asked({"menu", "veskar_menu"}, {1}), task + "{\"menuPosition\":1}\n");
}

TEST_F(MwTest, MenuTellsItsOwnPositionAlsoWhenALeavingProcessRepliesAfterTheNextOneHasOpenedAnother)
{
    const auto opens = [this](int position)
    {
        m_application.AskForTask("name:menu ", "stop");
        m_application.OpenMenuPosition(position);
    };
    m_application.Leave();
    FakeApplication leaving;
    leaving.Arrive();
    std::unique_ptr<Process> second;
    leaving.WhileHandling(
        [&]
        {
            leaving.Leave();
            m_application.Arrive();
            opens(0);
            second = std::make_unique<Process>(Mw({"menu", "veskar_menu"}));
            EXPECT_TRUE(WaitUntil([this] { return CountInLog("menu request \"veskar_menu\"") == 1; }));
            m_application.WhileHandling([opens] { opens(1); });
            m_application.HandleSent();
        });
    Process first = Mw({"menu", "veskar_info"});
    leaving.Take();
    m_application.Take();
    const std::string task = "{\"task\":\"name:menu \",\"action\":\"stop\"}\n";
    EXPECT_EQ(first.Status() + second->Status(), 0);
    EXPECT_EQ(first.Output(), task + "{\"menuPosition\":0}\n");
    EXPECT_EQ(second->Output(), task + "{\"menuPosition\":1}\n");
}

TEST_F(MwTest, LogTellsOfAPinItsLengthOnly)
{
    Process mw = Shown(1, "pin");
    m_application.Answer(1, 255, 0, 0, 0, "8071");
    EXPECT_EQ(mw.Status(), 0);
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("data 4 bytes; 1 waited") == 1; }));
    EXPECT_EQ(CountInLog("8071"), 0);
}
