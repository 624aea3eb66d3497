/** What `veskar-mw` makes of its command line, without a bus. */
#include "CommandLine.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <unistd.h>

#include <gtest/gtest.h>

using namespace veskar;

namespace
{

using Values = std::map<std::string, Request::Value>;

Command Parsed(Texts arguments)
{
    arguments.insert(arguments.begin(), "veskar-mw");
    std::vector<char*> argv;
    for (std::string& argument : arguments)
    {
        argv.push_back(argument.data());
    }
    return std::get<Command>(ParseCommandLine(static_cast<int>(argv.size()), argv.data()));
}

} // namespace

TEST(MwCommandLine, EveryValueOfTheKindIsSentAlsoWhereNothingIsGiven)
{
    EXPECT_EQ(Parsed({"--ui-id", "-3", "--source-id", "5", "message"}).request.Values(),
              (Values{{"signal_type_key", "signal_tvservice"},
                      {"signal_tvservice_key", "ui_type_message"},
                      {"ui_param_ui_id", "-3"},
                      {"ui_param_source_id", "5"},
                      {"ui_param_title", ""},
                      {"ui_param_sub", ""},
                      {"ui_param_bottom", ""},
                      {"ui_param_txt", ""},
                      {"ui_param_buttons", Texts{}},
                      {"ui_param_noclose", "0"}}));
    EXPECT_EQ(Parsed({"pin"}).request.Values().at("ui_param_pin_length"), Request::Value{"4"});
}

TEST(MwCommandLine, TextsAreTakenAsTheyAre)
{
    const Values values = Parsed({"message", "--title=-t", "--sub=", "--text", "", "--bottom", "--x=", "--button",
                                  "[a,b]", "--button", "", "--button=-x", "--no-close"})
                              .request.Values();
    EXPECT_EQ(values.at("ui_param_title"), Request::Value{"-t"});
    EXPECT_EQ(values.at("ui_param_sub"), Request::Value{""});
    EXPECT_EQ(values.at("ui_param_txt"), Request::Value{""});
    EXPECT_EQ(values.at("ui_param_bottom"), Request::Value{"--x="});
    EXPECT_EQ(values.at("ui_param_buttons"), (Request::Value{Texts{"[a,b]", "", "-x"}}));
    EXPECT_EQ(values.at("ui_param_noclose"), Request::Value{"1"});
}

TEST(MwCommandLine, RowsOfAFileFollowThoseGivenOneByOne)
{
    const std::string file = testing::TempDir() + "/rows." + std::to_string(getpid());
    std::ofstream{file} << "b\tc\n\nd\n";
    const Command command = Parsed({"list", "--entries-from", file, "--entry", "a"});
    std::remove(file.c_str());
    EXPECT_EQ(command.request.Values().at("ui_param_entries"), (Request::Value{Texts{"a", "b\tc", "", "d"}}));
}

TEST(MwCommandLine, OnlyARequestForAScreenIsAnswered)
{
    EXPECT_TRUE(Parsed({"loading"}).request.AsksForScreen());
    EXPECT_FALSE(Parsed({"close"}).request.AsksForScreen());
    EXPECT_FALSE(Parsed({"sequence"}).request.AsksForScreen());
    EXPECT_FALSE(Parsed({"menu", "veskar_info"}).request.AsksForScreen());
    EXPECT_FALSE(Parsed({"raw", "signal_type_key=signal_tvservice", "signal_tvservice_key=x", "ui_param_ui_id=1",
                         "ui_param_source_id=255"})
                     .request.AsksForScreen());
}
