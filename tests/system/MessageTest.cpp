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
    EXPECT_EQ(CountInLog("no key router"), 0);
}

TEST_F(Message, GivesItsKeysBackWhenItIsClosed)
{
    Process request = SendMessage(7, 255, {"--button", "Yes"});
    const Picture shown = StillShot();
    EXPECT_THAT(Grabs(), AllOf(SizeIs(7), Contains(Key("Return")), Each(Pair(_, "registered"))));
    Send({"--ui-id", "7", "--source-id", "255", "close"});
    ExpectAnswer(request, Answer(7, 255, 2, 0, 0));
    EXPECT_TRUE(Grabs().empty());
    ChangedShot(shown);
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
    for (auto request = requests.begin(); request != requests.end(); ++request)
    {
        const int id = static_cast<int>(request - requests.begin()) + 1;
        ExpectAnswer(*request, request == last ? Answer(id, 255, 0, 1, 0) : Answer(id, 255, 2, 0, 0));
    }
    EXPECT_EQ(CountInLog("SendResponse"), COUNT);
}

INSTANTIATE_TEST_SUITE_P(Apart, Replacements, ::testing::Values(3, 100));

using Keys = TvTest;

TEST_F(Keys, OfAPrivilegedScreenAreItsAloneAndTopmostWhereAnotherClientHasThem)
{
    const std::string other = "org.tizen.another-app";
    Process process({"env", "VESKAR_APP_ID=" + other, VESKAR_APPLICATION_PROGRAM});
    const std::map<std::string, sdbus::Variant> message{{"signal_type_key", "signal_tvservice"s},
                                                        {"signal_tvservice_key", "ui_type_message"s},
                                                        {"ui_param_ui_id", "9"s},
                                                        {"ui_param_source_id", "254"s}};
    ASSERT_TRUE(WaitUntil([&] { return SendRaw(message, other).empty(); }));
    // The group has 80 entries, 8 of which repeat another.
    EXPECT_THAT(Grabs(std::to_string(ApplicationPid(other))),
                AllOf(SizeIs(72), Contains(Key("XF86RaiseChannel")), Each(Pair(Ne("Return"), "exclusive"))));
    Process request = SendMessage(7, 254);
    EXPECT_THAT(Grabs(), AllOf(SizeIs(72), Each(Pair(_, "topmost"))));
}

TEST_F(Keys, NeedNoRouterAndThatThereIsNoneIsToldOnce)
{
    const std::string log = Environment("XDG_RUNTIME_DIR") + "/no-router.log";
    const std::string script = "veskar-mw --ui-id 7 message --text Hello --button OK & "
                               "until grep -q 'Service complete!' $VESKAR_TV_LOG; do sleep 0.05; done; "
                               "veskar-remote wait --still && veskar-remote press Return; wait $! && "
                               "for screen in message list pin; do veskar-mw --no-wait $screen || exit; done";
    Process tv({"veskar-tv", "--no-keyrouter", "--log", log, "--", "sh", "-c", script});
    ExpectAnswer(tv, Answer(7, 255, 0, 1, 0));
    EXPECT_EQ(RunCommand({"grep", "-c", "no key router", log}), "1\n");
    EXPECT_LT(std::stoi(RunCommand({"grep", "-c", "VESKAR-APP W", log})), 60) << "failed grabs fill the log";
}
