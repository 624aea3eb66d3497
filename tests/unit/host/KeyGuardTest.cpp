/** Which keys the desk holds back, and for how long. */
#include "keyguard/KeyGuard.h"

#include <OwnScreen.h>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using veskar::KeyGuard;

namespace
{

class KeyGuardTest : public testing::Test
{
protected:
    KeyGuardTest() { m_guard.ExpectScreens(); }

    void Show(KeyGuard::Time now)
    {
        m_guard.ScreenComes();
        m_guard.ScreenIsDrawn(now);
    }

    /** A press and, if the program got that, a release that it gets too. */
    bool Press(const char* key, KeyGuard::Time now)
    {
        const bool got = Hold(key, now);
        EXPECT_EQ(m_guard.LetsRelease(CODE), got) << key;
        return got;
    }

    bool Hold(const char* key, KeyGuard::Time now) { return m_guard.Lets({key, CODE, ++m_stamp}, now, m_delay); }
    bool Repeat(const char* key, KeyGuard::Time now) { return m_guard.Lets({key, CODE, m_stamp}, now, m_delay); }

    static constexpr unsigned CODE = 36;
    KeyGuard m_guard;
    KeyGuard::Time m_delay = 200ms;
    unsigned m_stamp = 0;
};

} // namespace

TEST_F(KeyGuardTest, HoldsWhatDecidesBackUntilTheScreenHasBeenSeen)
{
    for (const char* key : {"Return", "XF86Back", "XF86Exit"})
    {
        m_guard.ScreenComes();
        EXPECT_FALSE(Press(key, 999ms)) << key;
        m_guard.ScreenIsDrawn(1000ms);
        EXPECT_FALSE(Press(key, 1199ms)) << key;
        EXPECT_TRUE(Press(key, 1200ms)) << key;
    }
    Show(2000ms);
    EXPECT_FALSE(Press("Return", 2100ms)) << "the next screen";
}

TEST_F(KeyGuardTest, HoldsDigitsBackUntilTheFirstFrameAndArrowsNever)
{
    m_guard.ScreenComes();
    EXPECT_FALSE(Press("0", 1000ms));
    EXPECT_TRUE(Press("Down", 1000ms));
    m_guard.ScreenIsDrawn(1000ms);
    EXPECT_TRUE(Press("9", 1000ms));
    EXPECT_TRUE(Press("XF86More", 1000ms));
}

TEST_F(KeyGuardTest, HoldsEverythingBackWhileThereIsNoScreenInAProgramThatHasSome)
{
    EXPECT_FALSE(Press("Down", 1000ms));
    Show(1000ms);
    m_guard.ScreenGoes();
    EXPECT_FALSE(Press("Down", 2000ms));
    m_guard = KeyGuard();
    EXPECT_TRUE(Press("Return", 1000ms));
}

TEST_F(KeyGuardTest, HoldsNothingBackFromAScreenWithoutADelay)
{
    m_delay = 0ms;
    m_guard.ScreenComes();
    EXPECT_TRUE(Press("Return", 1000ms));
    EXPECT_TRUE(Press("1", 1000ms));
}

TEST_F(KeyGuardTest, RepeatsAKeyOnlyOnTheScreenThatGotItsPress)
{
    Show(1000ms);
    EXPECT_TRUE(Hold("Down", 1300ms));
    EXPECT_TRUE(Repeat("Down", 2000ms));
    Show(3000ms);
    EXPECT_FALSE(Repeat("Down", 4000ms));
    EXPECT_TRUE(m_guard.LetsRelease(CODE)) << "it has been pressed there";
    EXPECT_TRUE(Hold("Down", 5000ms));
    m_guard.ScreenGoes();
    Show(6000ms);
    EXPECT_FALSE(Repeat("Down", 7000ms));
    EXPECT_TRUE(Hold("Down", 8000ms)) << "its release was lost, and this is another press";
}

TEST_F(KeyGuardTest, RepeatsNoKeyWhosePressItHeldBack)
{
    Show(1000ms);
    EXPECT_FALSE(Hold("Return", 1100ms));
    EXPECT_FALSE(Repeat("Return", 2000ms));
    EXPECT_FALSE(m_guard.LetsRelease(CODE));
    EXPECT_TRUE(Press("Return", 3000ms));
}

TEST(OwnScreenTest, AFrameOfTheScreenBeforeDoesNotShowTheNext)
{
    struct : veskar::OwnScreen::Display
    {
        void Changed(bool /*shown*/, int /*uiId*/) override {}
        void AwaitFrame(std::function<void()> reached) override { frames.push_back(std::move(reached)); }
        std::set<std::string> HeldKeys() const override { return {}; }
        std::vector<std::function<void()>> frames;
    } display;
    auto& own = veskar::OwnScreen::Instance();
    own.SetDisplay(&display);
    own.Comes();
    own.IsDrawn();
    own.Comes();
    display.frames[0]();
    EXPECT_EQ(own.Shown(), nullptr);
    own.IsDrawn();
    display.frames[1]();
    EXPECT_NE(own.Shown(), nullptr);
    own.Goes();
    own.SetDisplay(nullptr);
}
