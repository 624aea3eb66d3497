// A message from the request to the answer, and what replaces, closes or refuses it.

#include "Tv.h"

#include <algorithm>
#include <thread>

using namespace std::string_literals;
using testing::_, testing::AllOf, testing::Contains, testing::Each, testing::Key, testing::Ne, testing::Pair,
    testing::SizeIs;

using Message = TvTest;

TEST_F(Message, AnswersTheButtonThatTheViewerChose)
{
    Process request = SendMessage(7, 255, {"--button", "Yes", "--button", "No"});
    Press({"Right", "Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 2, 0));
    EXPECT_TRUE(WaitUntil([this] { return Grabs().empty(); }));
}

TEST_F(Message, StaysWhenACloseNamesAnotherIdAndGoesWhenItNamesItsOwn)
{
    Process request = SendMessage(7, 255, {"--button", "Yes"});
    const Picture shown = StillShot();
    Send({"--ui-id", "8", "--source-id", "255", "close"});
    EXPECT_EQ(CountInLog("reject close command, ui id mismatch (7 , 8)"), 1);
    EXPECT_FALSE(request.HasEnded());
    EXPECT_THAT(Grabs(), AllOf(SizeIs(7), Contains(Key("Return")), Each(Pair(_, "registered"))));
    EXPECT_TRUE(StillShot() == shown);

    Send({"--ui-id", "7", "--source-id", "255", "close"});
    EXPECT_EQ(request.Status(), 2);
    EXPECT_TRUE(Grabs().empty());
    ChangedShot(shown);
}

TEST_F(Message, TurnsThePagesOfALongText)
{
    std::string text;
    for (int i = 1; text.size() < 2000; ++i)
    {
        text += "Sentence number " + std::to_string(i) + " of a long text that fills several pages. ";
    }
    Process request = Send({"message", "--text", text});
    const Picture first = StillShot();
    Press({"Up"});
    EXPECT_TRUE(StillShot() == first) << "there is nothing above the first page";
    Press({"Down"});
    ChangedShot(first);
    Press({"Up"});
    EXPECT_TRUE(WaitUntil([&] { return Shot() == first; })) << "the first page does not come back";
    EXPECT_FALSE(request.HasEnded());
    Press({"Back"});
    EXPECT_EQ(request.Status(), 1);
}

/** Replaces a screen twenty times, with this time between them. */
class Replacements : public TvTest, public ::testing::WithParamInterface<int>
{
};

TEST_P(Replacements, LeaveTheLastOneHearingKeysAndEveryOtherAnsweredOnce)
{
    constexpr int COUNT = 20;
    std::vector<Process> requests;
    for (int id = 1; id <= COUNT; ++id)
    {
        requests.emplace_back(std::vector<std::string>{"veskar-mw", "--ui-id", std::to_string(id), "message", "--text",
                                                       "Replaced soon", "--button", "OK"});
        std::this_thread::sleep_for(std::chrono::milliseconds(GetParam()));
    }
    ASSERT_TRUE(WaitUntil([this] { return CountInLog("Service complete!") == COUNT; }));

    const auto hasEnded = [](Process& request)
    {
        return request.HasEnded();
    };
    ASSERT_TRUE(WaitUntil([&] { return std::count_if(requests.begin(), requests.end(), hasEnded) == COUNT - 1; }));
    const auto last = std::find_if_not(requests.begin(), requests.end(), hasEnded);
    Press({"Return"});
    EXPECT_EQ(last->Status(), 0);
    for (auto request = requests.begin(); request != requests.end(); ++request)
    {
        const int id = static_cast<int>(request - requests.begin()) + 1;
        EXPECT_EQ(request->Output(), request == last ? Answer(id, 255, 0, 1, 0) : Answer(id, 255, 2, 0, 0));
    }
    EXPECT_EQ(CountInLog("SendResponse"), COUNT);
}

INSTANTIATE_TEST_SUITE_P(Apart, Replacements, ::testing::Values(3, 100));

using Keys = TvTest;

TEST_F(Keys, OfAPrivilegedScreenAreTheChannelChangersForItselfAlone)
{
    Process request = SendMessage(7, 254, {"--button", "OK"});
    // The group has 80 entries, 8 of which repeat another.
    EXPECT_THAT(Grabs(), AllOf(SizeIs(72), Contains(Key("XF86RaiseChannel")), Each(Pair(Ne("Return"), "exclusive"))));
}

TEST_F(Keys, ThatAnotherClientHoldsForItselfAloneAreHeldTopmost)
{
    const std::string other = "org.tizen.another-app";
    Process process({"env", "VESKAR_APP_ID=" + other, VESKAR_APPLICATION_PROGRAM});
    const std::map<std::string, sdbus::Variant> message{{"signal_type_key", "signal_tvservice"s},
                                                        {"signal_tvservice_key", "ui_type_message"s},
                                                        {"ui_param_ui_id", "9"s},
                                                        {"ui_param_source_id", "254"s}};
    ASSERT_TRUE(WaitUntil([&] { return SendRaw(message, other).empty(); }));
    Process request = SendMessage(7, 254);
    EXPECT_THAT(Grabs(), AllOf(SizeIs(72), Each(Pair(_, "topmost"))));
}

TEST_F(Keys, NeedNoRouterForTheScreenToShowAndBeAnswered)
{
    const std::string log = Environment("XDG_RUNTIME_DIR") + "/no-router.log";
    const std::string script = "veskar-mw --ui-id 7 message --text Hello --button OK & "
                               "until grep -q 'Service complete!' $VESKAR_TV_LOG; do sleep 0.05; done; "
                               "veskar-remote wait --still && veskar-remote press Return; wait $!";
    Process tv({"veskar-tv", "--no-keyrouter", "--log", log, "--", "sh", "-c", script});
    ExpectAnswer(tv, Answer(7, 255, 0, 1, 0));
    EXPECT_NE(RunCommand({"grep", "-c", "Failed to get key router id", log}), "0\n");
}
