/** The lines of the platform's log. */
#include <SecretMask.h>
#include <dlog.h>

#include <sstream>
#include <string>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

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
