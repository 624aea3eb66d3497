/** What `veskar-mw` makes of its command line, without a bus. */
#include "CommandLine.h"
#include "Report.h"
#include "Warnings.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace veskar;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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

Texts WarningsFor(const Texts& arguments, bool waits = true)
{
    return Warnings(Parsed(arguments).request, waits);
}

Texts WarningsForRows(std::size_t rows, Texts arguments)
{
    for (; rows > 0; --rows)
    {
        arguments.insert(arguments.end(), {"--entry", "x"});
    }
    return WarningsFor(arguments);
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

TEST(MwCommandLine, AWordThatIsNearlyKnownIsNamed)
{
    const auto said = [](std::vector<const char*> words)
    {
        words.insert(words.begin(), "veskar-mw");
        testing::internal::CaptureStderr();
        const auto result = ParseCommandLine(static_cast<int>(words.size()), const_cast<char**>(words.data()));
        EXPECT_EQ(std::get<int>(result), 64);
        return testing::internal::GetCapturedStderr();
    };
    EXPECT_THAT(said({"mesage"}), HasSubstr("did you mean \"message\"?"));
    EXPECT_THAT(said({"pin", "--titel=x"}), HasSubstr("did you mean \"--title\"?"));
    EXPECT_THAT(said({"whatever"}), Not(HasSubstr("did you mean")));
    EXPECT_THAT(WarningsFor({"raw", "ui_param_tilte=x"}, false),
                ElementsAre(HasSubstr("did you mean \"ui_param_title\"?")));
}

TEST(MwReport, AnAnswerRepeatsTheTextsOfItsNumbers)
{
    const Request request =
        Parsed({"select", "--header", "--entry", "Name", "--entry", "News", "--button", "Yes", "--button", "No"})
            .request;
    EXPECT_THAT(ToJson({7, 255, 0, 2, 0, ""}, request), EndsWith(R"("data":"","label":"No"})"));
    EXPECT_THAT(ToJson({7, 255, 0, 0, 1, ""}, request), EndsWith(R"("data":"","row":"News"})"));
    EXPECT_THAT(ToJson({7, 255, 0, 3, 2, ""}, request), EndsWith(R"("data":""})")) << "there are none";
    EXPECT_THAT(ToJson({7, 255, 2, 1, 1, ""}, request), EndsWith(R"("data":""})")) << "closed without an answer";
}

TEST(MwWarnings, TellOfAnAnswerThatNobodySends)
{
    EXPECT_THAT(WarningsFor({"--ui-id", "0", "message"}), ElementsAre(HasSubstr("answered by no key")));
    EXPECT_THAT(WarningsFor({"--source-id", "100", "message"}), ElementsAre(HasSubstr("answered by no key")));
    EXPECT_THAT(WarningsFor({"--ui-id", "0", "message"}, false), IsEmpty());
    EXPECT_THAT(WarningsFor({"--source-id", "253", "close"}), ElementsAre(HasSubstr("sends no answer")));
    EXPECT_THAT(WarningsFor({"--source-id", "254", "--ui-id", "0", "close"}, false), IsEmpty());
}

TEST(MwWarnings, TellOfRowsThatAreAnsweredAsOthers)
{
    EXPECT_THAT(WarningsForRows(255, {"select"}), IsEmpty());
    EXPECT_THAT(WarningsForRows(256, {"select"}), ElementsAre(HasSubstr("row 256 is answered as 0")));
    EXPECT_THAT(WarningsForRows(256, {"image-list", "--header"}), IsEmpty());
    EXPECT_THAT(WarningsForRows(257, {"image-list", "--header"}), ElementsAre(HasSubstr("row 256 is answered as 0")));
    EXPECT_THAT(WarningsForRows(256, {"list"}), IsEmpty()) << "its rows are not answered";
}

TEST(MwWarnings, TellOfAHeaderThatIsNotOverItsColumns)
{
    const auto warnings = [](const std::string& kind, const std::string& format, const std::string& header)
    {
        return WarningsFor({kind, "--header", "--format", format, "--entry", header});
    };
    EXPECT_THAT(warnings("list", "LR", "a\tb"), IsEmpty());
    EXPECT_THAT(warnings("list", "LR", "a"), ElementsAre(HasSubstr("cells of the header: 1, columns: 2")));
    EXPECT_THAT(warnings("image-list", "LR", "a\tb\t"), ElementsAre(HasSubstr("header: 3, columns: 2")));
    EXPECT_THAT(warnings("select", "LLLLLLLLL", "1\t2\t3\t4\t5\t6\t7\t8"), IsEmpty());
    EXPECT_THAT(warnings("multi-list", "LR", "a"), IsEmpty()) << "it is not shown";
    EXPECT_THAT(WarningsFor({"list", "--header", "--format", "LR"}), IsEmpty()) << "there is none";
}
