// The settings in their files, and the lines of the log.

#include <SecretMask.h>
#include <SettingsStore.h>

#include <dlog.h>
#include <system_info.h>
#include <ui_orientation.h>
#include <vconf.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "Process.h"

namespace
{

constexpr const char* NUMBER = "db/menu/system/accessibility/focuszoom";
constexpr const char* FLAG = "com.brelmon/featureconf/product.b2b_option_support";

void WriteFile(const std::string& key, const std::string& content)
{
    const auto path = veskar::SettingFile(key);
    ASSERT_TRUE(path);
    std::filesystem::create_directories(path->parent_path());
    std::ofstream(*path, std::ios::binary) << content;
}

TEST(Settings, WhatTheToolSetsIsReadByThePlatform)
{
    RunCommand({"veskar-setting", "set", NUMBER, "-5"});
    RunCommand({"veskar-setting", "set", FLAG, "on"});
    RunCommand({"veskar-setting", "set", "db/menu_widget/orientation", "1"});
    RunCommand({"veskar-setting", "set", "db/menu_widget/language", "el"});
    int number = 0;
    bool flag = false;
    EXPECT_EQ(vconf_get_int(NUMBER, &number), 0);
    EXPECT_EQ(number, -5);
    EXPECT_EQ(system_info_get_custom_bool(FLAG, &flag), 0);
    EXPECT_TRUE(flag);
    EXPECT_EQ(ua_UI_orientation_get(), 1);
    const std::unique_ptr<char, void (*)(void*)> language(vconf_get_str("db/menu_widget/language"), free);
    EXPECT_STREQ(language.get(), "el");
    EXPECT_EQ(RunCommand({"veskar-setting", "get", FLAG}), "1\n");
}

TEST(Settings, OneLineBreakAtTheEndIsNoPartOfAValueAndANumberIsNothingElse)
{
    const std::pair<const char*, int> contents[] = {{"1\n", 0}, {"1", 0},    {"1\n\n", -1},       {"", -1},
                                                    {"1 ", -1}, {"0x1", -1}, {"99999999999", -1}, {"\n", -1}};
    for (const auto& [content, result] : contents)
    {
        WriteFile(NUMBER, content);
        int number = 77;
        EXPECT_EQ(vconf_get_int(NUMBER, &number), result) << content;
        EXPECT_EQ(number, result == 0 ? 1 : 77) << content;
    }
}

TEST(Settings, AKeyNeverLeavesItsFolder)
{
    for (const char* key : {"", "/etc/passwd", "db/../../x", "db//x", "db/", "memory/./x", "..", "db/a\nb"})
    {
        EXPECT_FALSE(veskar::SettingFile(key)) << key;
        EXPECT_EQ(veskar::WriteSetting(key, "1"), std::errc::invalid_argument) << key;
    }
    EXPECT_EQ(vconf_get_str("db/menu"), nullptr) << "a folder is no value";
}

TEST(Settings, TheToolRefusesWhatNothingReadsAndValuesOfAnotherType)
{
    EXPECT_EQ(Process({"veskar-setting", "set", "db/nobody", "1"}).Status(), 64);
    EXPECT_EQ(Process({"veskar-setting", "set", "db/nobody", "1", "--force"}).Status(), 0);
    EXPECT_EQ(Process({"veskar-setting", "set", NUMBER, "large"}).Status(), 64);
    EXPECT_EQ(Process({"veskar-setting", "set", FLAG, "2"}).Status(), 64);
    EXPECT_EQ(Process({"veskar-setting", "get", "memory/nobody", "--force"}).Status(), 1);
    for (const char* key : {NUMBER, FLAG, "db/menu_widget/language", "memory/ephotel/hotelmenu/hotelfactorymode"})
    {
        EXPECT_NE(RunCommand({"veskar-setting", "list"}).find(key), std::string::npos) << key;
    }
}

TEST(Log, TypedDigitsAreMaskedAndOtherNumbersAreNot)
{
    const std::pair<std::string, std::string> lines[] = {
        {"x(12) > \x1b[32mNumber [5] pressed!\x1b[0m", "x(12) > \x1b[32mNumber [*] pressed!\x1b[0m"},
        {"PIN entered is 1234\x1b[0m", "PIN entered is ****\x1b[0m"},
        {"Key input 7 not handled.", "Key input * not handled."},
        {"Key input KP_7 not handled.", "Key input KP_* not handled."},
        {"Key input F7 not handled.", "Key input F7 not handled."},
        {"Number [5] of 7, m_uiId:7", "Number [5] of 7, m_uiId:7"},
    };
    for (const auto& [line, expected] : lines)
    {
        auto masked = line;
        veskar::MaskTypedDigits(masked);
        EXPECT_EQ(masked, expected);
    }
}

TEST(Log, OneCallIsOneLineFromAnyThread)
{
    constexpr int COUNT = 200;
    // Longer than what a pipe takes at once.
    const std::string text = std::string(6000, 'x') + "\nNumber [5] pressed!";
    testing::internal::CaptureStderr();
    std::thread threads[4];
    for (auto& thread : threads)
    {
        thread = std::thread(
            [&]
            {
                for (int line = 0; line < COUNT; ++line)
                {
                    __dlog_print(LOG_ID_MAIN, DLOG_ERROR, "TAG", "%s", text.c_str());
                }
            });
    }
    for (auto& thread : threads)
    {
        thread.join();
    }
    std::istringstream lines(testing::internal::GetCapturedStderr());
    const std::string expected = "TAG E " + std::string(6000, 'x') + "\\nNumber [*] pressed!";
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
    {
        ASSERT_EQ(line, expected);
    }
    EXPECT_EQ(count, 4 * COUNT);
}

} // namespace
