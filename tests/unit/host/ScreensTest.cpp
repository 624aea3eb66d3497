/** Who waits for the answer of which screen, in the daemon. */
#include "services/Screens.h"
#include "services/DeskBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace veskar;

namespace
{

constexpr ScreenIds MESSAGE{7, 255};
constexpr const char* PROCESS = ":1.5";
constexpr const char* NEXT_PROCESS = ":1.6";
constexpr std::uint8_t GONE = 0;

class ScreensTest : public testing::Test
{
protected:
    /** One more request. Its outcome is in m_outcomes under the client's name: a button, or GONE. */
    std::shared_ptr<Waiter> Wait(const std::string& client, ScreenIds screen = MESSAGE)
    {
        const auto waiter =
            m_screens.Add(client, screen,
                          {[this, client](const Answer& answer) { m_outcomes.emplace_back(client, answer.button); },
                           [this, client](const sdbus::Error& error)
                           {
                               EXPECT_EQ(error.getName(), Desk::GONE);
                               m_outcomes.emplace_back(client, GONE);
                           }});
        return waiter.lock();
    }

    void WaitHandled(const std::string& client, const char* process = PROCESS)
    {
        m_screens.Delivered(Wait(client), process);
    }

    std::size_t AnsweredWith(std::uint8_t button, ScreenIds screen = MESSAGE, const char* process = PROCESS)
    {
        return m_screens.Answered({screen, 0, button, 0, ""}, process);
    }

    using Outcomes = std::vector<std::pair<std::string, std::uint8_t>>;
    Outcomes m_outcomes;
    Screens m_screens;
};

} // namespace

TEST_F(ScreensTest, AnswerIsForItsScreenAloneAndOnlyOnce)
{
    WaitHandled("first");
    m_screens.Delivered(Wait("second", {8, 255}), PROCESS);
    EXPECT_EQ(AnsweredWith(1, {7, 254}), 0U);
    EXPECT_EQ(AnsweredWith(1, {8, 255}), 1U);
    EXPECT_EQ(AnsweredWith(2, {8, 255}), 0U);
    EXPECT_EQ(m_outcomes, (Outcomes{{"second", 1}}));
}

TEST_F(ScreensTest, AnswerIsForEveryoneWhoseRequestWasHandledAndForNobodyElse)
{
    WaitHandled("shown");
    WaitHandled("updated in place");
    const auto coming = Wait("being handled");
    EXPECT_EQ(AnsweredWith(1), 2U);
    EXPECT_EQ(m_outcomes, (Outcomes{{"shown", 1}, {"updated in place", 1}}));

    m_screens.Delivered(coming, PROCESS);
    EXPECT_EQ(AnsweredWith(2), 1U);
    EXPECT_EQ(m_outcomes.back(), Outcomes::value_type("being handled", 2));
}

TEST_F(ScreensTest, AnswerOfAnotherProcessIsNotForThoseWhoWaitForThisOne)
{
    WaitHandled("old");
    WaitHandled("new", NEXT_PROCESS);
    EXPECT_EQ(AnsweredWith(1, MESSAGE, NEXT_PROCESS), 1U);
    EXPECT_EQ(m_screens.ProcessEnded(PROCESS), 1U);
    EXPECT_EQ(m_outcomes, (Outcomes{{"new", 1}, {"old", GONE}}));
}

TEST_F(ScreensTest, RequestThatALeavingProcessPassesOnIsTheNextOnes)
{
    WaitHandled("handled");
    const auto passedOn = Wait("passed on");
    m_screens.ProcessLeft();
    m_screens.ProcessCame(NEXT_PROCESS);
    EXPECT_EQ(AnsweredWith(1, MESSAGE, NEXT_PROCESS), 1U) << "before the leaving process has replied";
    EXPECT_EQ(m_outcomes, (Outcomes{{"passed on", 1}}));
}

TEST_F(ScreensTest, EndOfAProcessLeavesARequestThatIsStillToBeReplied)
{
    const auto passedOn = Wait("passed on");
    m_screens.ProcessLeft();
    m_screens.ProcessCame(NEXT_PROCESS);
    m_screens.ProcessEnded(NEXT_PROCESS);
    EXPECT_TRUE(m_outcomes.empty());
    m_screens.Delivered(passedOn, "");
    EXPECT_EQ(m_outcomes, (Outcomes{{"passed on", GONE}}));
}

TEST_F(ScreensTest, ClientThatHasGoneHearsNothing)
{
    WaitHandled("gone");
    WaitHandled("here");
    m_screens.RemoveClient("gone");
    EXPECT_EQ(AnsweredWith(1), 1U);
    EXPECT_EQ(m_outcomes, (Outcomes{{"here", 1}}));
}
