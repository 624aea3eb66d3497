// A message from the request to the answer, and what replaces, closes or refuses it.

#include "Tv.h"

#include <thread>

namespace
{

const std::map<std::string, std::string> NAVIGATION_KEYS{
    {"XF86Exit", "registered"}, {"XF86Back", "registered"}, {"Return", "registered"}, {"Up", "registered"},
    {"Left", "registered"},     {"Right", "registered"},    {"Down", "registered"}};

std::map<std::string, sdbus::Variant> PrivilegedMessage()
{
    std::map<std::string, sdbus::Variant> values;
    for (const auto& [key, value] :
         {std::pair("signal_type_key", "signal_tvservice"), std::pair("signal_tvservice_key", "ui_type_message"),
          std::pair("ui_param_ui_id", "9"), std::pair("ui_param_source_id", "254")})
    {
        values.emplace(key, sdbus::Variant(std::string(value)));
    }
    return values;
}

} // namespace

class Message : public TvTest
{
};

TEST_F(Message, answers_the_button_that_the_viewer_chose)
{
    Process request = SendMessage(7, 255, {"--button", "Yes", "--button", "No"});
    Press({"Right", "Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 2, 0));
}

TEST_F(Message, without_buttons_hears_Back_and_Exit)
{
    Process first = SendMessage(7, 255);
    Press({"Back"});
    ExpectAnswer(first, Answer(7, 255, 3, 0, 0));

    Process second = SendMessage(8, 3);
    Press({"Exit"});
    ExpectAnswer(second, Answer(8, 3, 2, 0, 0));
}

TEST_F(Message, that_must_not_close_hears_its_buttons_alone)
{
    Process request = SendMessage(7, 255, {"--no-close", "--button", "OK"});
    Press({"Back", "Exit", "Down"});
    EXPECT_FALSE(request.HasEnded());
    Press({"Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 1, 0));
}

TEST_F(Message, is_answered_as_closed_when_another_replaces_it)
{
    Process first = SendMessage(7, 255, {"--button", "Yes"});
    Process second = SendMessage(8, 255, {"--button", "Yes"});
    ExpectAnswer(first, Answer(7, 255, 2, 0, 0));
    EXPECT_FALSE(second.HasEnded());
    Press({"Return"});
    ExpectAnswer(second, Answer(8, 255, 0, 1, 0));
}

TEST_F(Message, stays_when_a_close_names_another_id_and_goes_when_it_names_its_own)
{
    Process request = SendMessage(7, 255, {"--button", "Yes"});
    const Picture shown = StillShot();
    Send({"--ui-id", "8", "--source-id", "255", "close"});
    EXPECT_EQ(CountInLog("reject close command, ui id mismatch (7 , 8)"), 1);
    EXPECT_FALSE(request.HasEnded());
    EXPECT_EQ(Grabs(), NAVIGATION_KEYS);
    EXPECT_TRUE(StillShot() == shown);

    Send({"--ui-id", "7", "--source-id", "255", "close"});
    EXPECT_EQ(request.Status(), 2);
    EXPECT_TRUE(Grabs().empty());
    ChangedShot(shown);
}

TEST_F(Message, of_the_access_module_is_closed_without_an_answer_by_a_close_of_the_module)
{
    Process request = SendMessage(7, 3, {"--button", "Yes"});
    Send({"--ui-id", "7", "--source-id", "3", "close"});
    EXPECT_TRUE(WaitUntil([this] { return Grabs().empty(); }));
    // The process has said all that it has to say when it is gone.
    EndApplication();
    EXPECT_EQ(CountInLog("SendResponse"), 0);
    EXPECT_FALSE(request.HasEnded());
}

TEST_F(Message, turns_the_pages_of_a_long_text)
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
}

TEST_F(Message, of_300_bytes_is_a_label_and_of_301_bytes_a_text_page)
{
    const std::string label = "label: ";
    Process shorter = Send({"--ui-id", "7", "message", "--text", std::string(300, 'a')});
    EXPECT_EQ(CountInLog(label), 1);
    Process longer = Send({"--ui-id", "8", "message", "--text", std::string(301, 'a')});
    EXPECT_EQ(CountInLog(label), 1);
    Press({"Down", "Back"});
    ExpectAnswer(longer, Answer(8, 255, 3, 0, 0));
}

/** Twenty replacements, each this long after the one before. */
class Replacements : public TvTest, public ::testing::WithParamInterface<int>
{
};

TEST_P(Replacements, leave_the_last_one_hearing_keys_and_every_other_answered_once)
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

    const auto waiting = [&requests]
    {
        std::vector<int> ids;
        for (int id = 1; id <= COUNT; ++id)
        {
            if (!requests[id - 1].HasEnded())
            {
                ids.push_back(id);
            }
        }
        return ids;
    };
    ASSERT_TRUE(WaitUntil([&] { return waiting().size() == 1; }));
    const int last = waiting().front();
    Press({"Return"});
    EXPECT_EQ(requests[last - 1].Status(), 0);
    EXPECT_EQ(requests[last - 1].Output(), Answer(last, 255, 0, 1, 0));
    for (int id = 1; id <= COUNT; ++id)
    {
        if (id != last)
        {
            EXPECT_EQ(requests[id - 1].Output(), Answer(id, 255, 2, 0, 0));
        }
    }
    EXPECT_EQ(CountInLog("SendResponse"), COUNT);
}

INSTANTIATE_TEST_SUITE_P(Apart, Replacements, ::testing::Values(3, 100));

TEST_F(Message, stays_when_a_value_that_is_no_text_is_refused)
{
    Process request = SendMessage(7, 255, {"--button", "Yes"});
    const auto refused = [this](const std::string& key, sdbus::Variant value)
    {
        const std::string error = SendRaw({{"signal_type_key", sdbus::Variant("sequence")}, {key, std::move(value)}});
        EXPECT_NE(error.find(key), std::string::npos) << "refused with: " << error;
    };
    refused("ui_param_number", sdbus::Variant(7));
    refused("ui_param_long", sdbus::Variant(std::string(256 * 1024 + 1, 'a')));
    refused("ui_param_many", sdbus::Variant(std::vector<std::string>(20001, "a")));
    refused("ui_param_much", sdbus::Variant(std::vector<std::string>(40, std::string(220 * 1024, 'a'))));
    EXPECT_EQ(SendRaw({{"signal_type_key", sdbus::Variant("sequence")},
                       {"ui_param_most", sdbus::Variant(std::string(256 * 1024, 'a'))}}),
              "");
    EXPECT_FALSE(request.HasEnded());
    Press({"Return"});
    ExpectAnswer(request, Answer(7, 255, 0, 1, 0));
}

class Keys : public TvTest
{
};

TEST_F(Keys, of_a_normal_screen_are_registered_until_its_answer)
{
    Process request = SendMessage(7, 255, {"--button", "OK"});
    EXPECT_EQ(Grabs(), NAVIGATION_KEYS);
    Press({"Return"});
    EXPECT_EQ(request.Status(), 0);
    EXPECT_TRUE(WaitUntil([this] { return Grabs().empty(); }));
}

TEST_F(Keys, of_a_privileged_screen_are_the_channel_changers_for_itself_alone)
{
    Process request = SendMessage(7, 254, {"--button", "OK"});
    const auto grabs = Grabs();
    // The group has 80 entries, 8 of which repeat another.
    EXPECT_EQ(grabs.size(), 72u);
    for (const auto& [key, mode] : grabs)
    {
        EXPECT_EQ(mode, "exclusive") << key;
    }
    EXPECT_EQ(grabs.count("XF86RaiseChannel"), 1u);
    EXPECT_EQ(grabs.count("Return"), 0u);
}

TEST_F(Keys, that_another_client_holds_for_itself_alone_are_held_topmost)
{
    const std::string other = "org.tizen.another-app";
    Process process({"env", "VESKAR_APP_ID=" + other, VESKAR_APPLICATION_PROGRAM});
    ASSERT_TRUE(WaitUntil([&] { return SendRaw(PrivilegedMessage(), other).empty(); }));
    Process request = SendMessage(7, 254);
    const auto grabs = Grabs();
    EXPECT_EQ(grabs.size(), 72u);
    for (const auto& [key, mode] : grabs)
    {
        EXPECT_EQ(mode, "topmost") << key;
    }
}

TEST_F(Keys, need_no_router_for_the_screen_to_show_and_be_answered)
{
    const std::string log = std::string(std::getenv("XDG_RUNTIME_DIR")) + "/no-router.log";
    Process tv({"veskar-tv", "--no-keyrouter", "--log", log, "--", "sh", "-c",
                "veskar-mw --ui-id 7 message --text Hello --button OK & "
                "until grep -q 'Service complete!' $VESKAR_TV_LOG; do sleep 0.05; done; "
                "sleep 0.5; veskar-remote press Return; wait $!"});
    ExpectAnswer(tv, Answer(7, 255, 0, 1, 0));
    EXPECT_NE(RunCommand({"grep", "-c", "Failed to get key router id", log}), "0\n");
}
