// The TV around the application: its settings, its other applications, its menu.

#include "Tv.h"

#include <csignal>

namespace
{

void Set(const std::string& key, const std::string& value)
{
    RunCommand({"veskar-setting", "set", key, value});
}

/** Owns an application's name and prints what it is asked, as long as this process lives. */
Process StandFor(const std::string& application)
{
    Process process({"sh", "-c", "exec " VESKAR_SERVICES_PROGRAM " --own " + application + " 2>&1"});
    EXPECT_TRUE(WaitUntil([&] { return process.Output().find("stands ready") != std::string::npos; }));
    return process;
}

} // namespace

class Surroundings : public TvTest
{
protected:
    void TearDown() override
    {
        Set("db/menu_widget/orientation", "0");
        Set("db/menu/system/accessibility/focuszoom", "0");
        Set("memory/ephotel/hotelmenu/hotelfactorymode", "0");
    }
};

TEST_F(Surroundings, direction_and_language_reach_the_running_application)
{
    Process leftToRight = SendMessage(7, 255, {"--button", "Yes", "--button", "No"});
    const Picture before = StillShot();
    Set("db/menu_widget/orientation", "1");
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("Config mirroring set to EINA_TRUE") == 1; }));
    Set("db/menu_widget/language", "ko_KR.UTF-8");
    EXPECT_TRUE(WaitUntil([this] { return CountInLog("Setting lang set ko_KR.UTF-8") > 0; }));

    // Yes, the first button, is now the right one.
    Process rightToLeft = SendMessage(8, 255, {"--button", "Yes", "--button", "No"});
    ChangedShot(before);
    Press({"Left", "Return"});
    ExpectAnswer(rightToLeft, Answer(8, 255, 0, 2, 0));
}

TEST_F(Surroundings, enlarged_text_leaves_the_shown_screen_alone_and_is_the_next_ones_as_if_it_had_always_been_on)
{
    Process shown = SendMessage(7, 255, {"--button", "OK"});
    const Picture before = StillShot();
    Set("db/menu/system/accessibility/focuszoom", "1");
    EXPECT_TRUE(StillShot() == before) << "the shown screen changes";
    Process next = SendMessage(8, 255, {"--button", "OK"});
    const Picture followed = ChangedShot(before);
    EndApplication();
    Process fresh = SendMessage(9, 255, {"--button", "OK"});
    EXPECT_TRUE(StillShot() == followed) << "not all of it is enlarged";
}

TEST_F(Surroundings, a_hotel_set_in_factory_mode_launches_its_menu_with_each_screen_that_goes)
{
    Process menu = StandFor("org.tizen.ep-hotel-factory");
    const auto launches = [&menu]
    {
        int count = 0;
        const std::string output = menu.Output();
        for (std::size_t at = output.find("AppControl"); at != std::string::npos;
             at = output.find("AppControl", at + 1))
        {
            ++count;
        }
        return count;
    };
    Set("memory/ephotel/hotelmenu/hotelfactorymode", "1");
    Set("com.brelmon/featureconf/product.b2b_option_support", "0");
    Process usual = SendMessage(7, 255, {"--button", "OK"});
    Press({"Return"});
    ExpectAnswer(usual, Answer(7, 255, 0, 1, 0));
    // The answer goes out before the screen does, and it is the going that asks what set this is.
    ASSERT_TRUE(WaitUntil([this] { return CountInLog("This is not a hotel TV") == 1; }));
    EXPECT_EQ(launches(), 0);

    Set("com.brelmon/featureconf/product.b2b_option_support", "1");
    Process hotel = SendMessage(8, 255, {"--button", "OK"});
    Press({"Return"});
    ExpectAnswer(hotel, Answer(8, 255, 0, 1, 0));
    EXPECT_TRUE(WaitUntil([&] { return launches() == 1; }));
}

TEST_F(Surroundings, the_screen_is_raised_above_the_setup_wizard_and_channel_search)
{
    const std::string raised = "Adjusting the Kavro UI layer";
    for (const std::string application : {"org.tizen.wizard", "org.tizen.channel-search"})
    {
        EndApplication();
        const int before = CountInLog(raised);
        Process alone = SendMessage(7, 255);
        EXPECT_EQ(CountInLog(raised), before);
        Process setup = StandFor(application);
        Process above = SendMessage(8, 255);
        EXPECT_EQ(CountInLog(raised), before + 1) << application;
    }
}

TEST_F(Surroundings, a_menu_position_reaches_the_middleware_and_its_screen_follows)
{
    const std::map<std::string, int> positions{
        {"veskar_info", 0}, {"veskar_menu", 1}, {"veskar_add_op", 2}, {"veskar_delete_op", 3}};
    for (const auto& [name, position] : positions)
    {
        const std::string answer = RunCommand({"veskar-mw", "menu", name});
        EXPECT_NE(answer.find("{\"menuPosition\":" + std::to_string(position) + "}"), std::string::npos) << answer;
        EXPECT_NE(answer.find("name:menu "), std::string::npos) << answer;
    }
    Process screen = SendMessage(7, 255, {"--button", "OK"});
    Press({"Return"});
    ExpectAnswer(screen, Answer(7, 255, 0, 1, 0));
}
