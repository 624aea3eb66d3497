// The settings, as the tool writes them and the platform reads them.

#include <system_info.h>
#include <ui_orientation.h>
#include <vconf.h>

#include <cstdlib>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "Process.h"

namespace
{

constexpr const char* NUMBER = "db/menu/system/accessibility/focuszoom";
constexpr const char* FLAG = "com.brelmon/featureconf/product.b2b_option_support";

TEST(Settings, WhatTheToolSetsIsReadByThePlatform)
{
    RunCommand({"veskar-setting", "set", NUMBER, "-5", "--force"});
    RunCommand({"veskar-setting", "set", FLAG, "on"});
    RunCommand({"veskar-setting", "set", "db/menu_widget/orientation", "1"});
    RunCommand({"veskar-setting", "set", "db/menu_widget/language", "el_GR.UTF-8"});
    int number = 0;
    bool flag = false;
    EXPECT_EQ(vconf_get_int(NUMBER, &number), 0);
    EXPECT_EQ(number, -5);
    EXPECT_EQ(system_info_get_custom_bool(FLAG, &flag), 0);
    EXPECT_TRUE(flag);
    EXPECT_EQ(ua_UI_orientation_get(), 1);
    const std::unique_ptr<char, void (*)(void*)> language(vconf_get_str("db/menu_widget/language"), free);
    EXPECT_STREQ(language.get(), "el_GR.UTF-8");
    EXPECT_EQ(RunCommand({"veskar-setting", "get", FLAG}), "1\n");
    RunCommand({"veskar-setting", "set", FLAG, "off"});
    EXPECT_EQ(RunCommand({"veskar-setting", "get", FLAG}), "0\n");
}

TEST(Settings, TheToolWritesNothingWhereNoTvReads)
{
    const auto outside = [](const Words& words)
    {
        const std::string home = Environment("XDG_RUNTIME_DIR") + "/home";
        return Process(Words{"env", "-u", "VESKAR_SETTINGS_DIR", "-u", "VESKAR_TV_LOG", "XDG_CONFIG_HOME=" + home,
                             "veskar-setting"} +
                       words)
            .Status();
    };
    EXPECT_EQ(outside({"set", NUMBER, "1"}), 69);
    EXPECT_EQ(outside({"get", NUMBER}), 1);
    EXPECT_EQ(outside({"set", NUMBER, "1", "--force"}), 0);
    EXPECT_EQ(outside({"unset", NUMBER}), 69);
    EXPECT_EQ(outside({"get", NUMBER}), 0);
}

TEST(Settings, TheToolRefusesWhatNothingReadsAndValuesOfAnotherType)
{
    EXPECT_EQ(Process({"veskar-setting", "set", "db/nobody", "1"}).Status(), 64);
    EXPECT_EQ(Process({"veskar-setting", "set", "db/nobody", "1", "--force"}).Status(), 0);
    for (const auto& [key, value] :
         {std::pair(NUMBER, "large"), std::pair(NUMBER, "+5"), std::pair(FLAG, "2"), std::pair(NUMBER, "2"),
          std::pair("db/menu_widget/language", "a\nb"), std::pair("db/menu_widget/language", "xx_YY")})
    {
        EXPECT_EQ(Process({"veskar-setting", "set", key, value}).Status(), 64) << value;
    }
    EXPECT_EQ(Process({"veskar-setting", "get", "memory/nobody", "--force"}).Status(), 1);
    RunCommand({"veskar-setting", "set", FLAG, "on"});
    RunCommand({"veskar-setting", "unset", FLAG});
    EXPECT_EQ(Process({"veskar-setting", "get", FLAG}).Status(), 1);
    for (const char* key : {NUMBER, FLAG, "db/menu_widget/language", "memory/ephotel/hotelmenu/hotelfactorymode"})
    {
        EXPECT_NE(RunCommand({"veskar-setting", "list"}).find(key), std::string::npos) << key;
    }
}

} // namespace
