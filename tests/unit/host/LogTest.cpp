/** The lines of the platform's log. */
#include <SecretMask.h>
#include <dlog.h>

#include <csignal>
#include <cstdlib>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

void Tell(const std::string& text)
{
    __dlog_print(LOG_ID_MAIN, DLOG_ERROR, "TAG", "%s", text.c_str());
}

} // namespace

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

TEST(Log, ColoursAreForTerminals)
{
    testing::internal::CaptureStderr();
    __dlog_print(LOG_ID_MAIN, DLOG_ERROR, "TAG", "a > \x1b[31m%s\x1b[0m", "[31m stays");
    Tell("another line");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::StartsWith("TAG E a > [31m stays\n"));
}

TEST(Log, OneCallIsOneLineFromAnyThreadAndEqualOnesAreCounted)
{
    constexpr int COUNT = 200;
    // Longer than what a pipe accepts at once.
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
                    Tell(text + (line % 4 == 0 ? "!" : ""));
                }
            });
    }
    for (auto& thread : threads)
    {
        thread.join();
    }
    Tell("end");
    std::istringstream lines(testing::internal::GetCapturedStderr());
    const std::string expected = "TAG E " + std::string(6000, 'x') + "\\nNumber [*] pressed!";
    const std::regex count("!?( \\(([0-9]+) more times\\))?");
    int told = 0;
    for (std::string line; std::getline(lines, line) && line != "TAG E end";)
    {
        ASSERT_EQ(line.substr(0, expected.size()), expected);
        line.erase(0, expected.size());
        std::smatch times;
        ASSERT_TRUE(std::regex_match(line, times, count)) << line;
        told += times[2].matched ? std::stoi(times[2]) : 1;
    }
    EXPECT_EQ(told, 4 * COUNT);
}

TEST(Log, EqualLinesAreFoldedAndTheirCountIsNotLostWhenTheProcessEndsOrCrashes)
{
    testing::internal::CaptureStderr();
    for (const char* line : {"once", "twice", "twice", "often", "often", "often", "often", "twice"})
    {
        Tell(line);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "TAG E once\nTAG E twice\nTAG E twice\nTAG E often\nTAG E often (3 more times)\nTAG E twice\n");
    const auto tellAndEnd = [](void (*end)())
    {
        for (int i = 0; i < 5; ++i)
        {
            Tell("last");
        }
        end();
    };
    const std::string counted = "TAG E last\nTAG E last \\(4 more times\\)\n";
    EXPECT_EXIT(tellAndEnd([] { exit(0); }), testing::ExitedWithCode(0), counted);
    EXPECT_EXIT(tellAndEnd([] { abort(); }), testing::KilledBySignal(SIGABRT), counted);
}
