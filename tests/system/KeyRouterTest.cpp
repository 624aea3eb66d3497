// Who hears which key: the compositor's routing, seen from clients without a toolkit.

#include "RemoteClient.h"
#include "RemoteSocketPath.h"
#include "Tv.h"
#include "WaylandWindow.h"

#include <optional>

#include <Ecore.h>

/** A TV with two windows, the second above the first; a test may make a third. */
class KeyRouter : public TvTest
{
protected:
    static void SetUpTestSuite() { ecore_init(); }
    static void TearDownTestSuite() { ecore_shutdown(); }

    void SetUp() override
    {
        // The compositor may not have noticed yet that the clients of the test before have disconnected.
        ASSERT_TRUE(WaitUntil([this] { return m_remote.Ask("grabs").empty(); }));
        m_lower.emplace().Show();
        m_upper.emplace().Show();
    }

    void CloseUpper()
    {
        m_upper.reset();
        ASSERT_TRUE(WaitUntil([this] { return m_lower->HasFocus(); }));
    }

    /** Presses a key and lets it go; the names of the windows that heard exactly this. */
    std::string WhoHears(const std::string& key)
    {
        m_remote.Ask("press " + key);
        std::string who;
        const std::pair<const char*, std::optional<WaylandWindow>*> windows[] = {
            {"lower", &m_lower}, {"upper", &m_upper}, {"third", &m_third}};
        for (const auto& [name, window] : windows)
        {
            const std::vector<std::string> heard = *window ? (*window)->Heard() : std::vector<std::string>();
            if (!heard.empty())
            {
                who += heard == std::vector<std::string>{key + " down", key + " up"} ? name : "something else";
            }
        }
        return who;
    }

    veskar::RemoteClient m_remote{veskar::RemoteSocketPath()};
    std::optional<WaylandWindow> m_lower;
    std::optional<WaylandWindow> m_upper;
    std::optional<WaylandWindow> m_third;
};

TEST_F(KeyRouter, SendsAnExclusiveKeyToItsHolderWhateverOthersAskedFor)
{
    EXPECT_TRUE(m_upper->Grab("XF86Back", KEYROUTER_MODE_REGISTERED));
    EXPECT_TRUE(m_upper->Grab("XF86Back", KEYROUTER_MODE_TOPMOST));
    EXPECT_TRUE(m_lower->Grab("XF86Back", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_EQ(WhoHears("XF86Back"), "lower");
    EXPECT_TRUE(m_upper->HasFocus() && !m_lower->HasFocus()) << "the key took the focus with it";
    EXPECT_FALSE(m_upper->Ungrab("XF86Back", KEYROUTER_MODE_EXCLUSIVE)) << "it is held in the other strength";
    EXPECT_TRUE(m_lower->Ungrab("XF86Back", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_EQ(WhoHears("XF86Back"), "upper");
}

TEST_F(KeyRouter, SendsToAWindowThatIsNotShownOnlyWhatItHoldsExclusively)
{
    m_third.emplace();
    EXPECT_TRUE(m_third->Grab("XF86Exit", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_third->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("XF86Exit"), "third");
    EXPECT_EQ(WhoHears("Return"), "upper");
}

TEST_F(KeyRouter, SendsARegisteredKeyToTheTopmostWindowThatRegisteredItOrToOneWhosePictureIsOnTheWay)
{
    m_third.emplace().BeginToShow();
    EXPECT_TRUE(m_third->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("Return"), "third");
    EXPECT_TRUE(m_lower->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("Return"), "lower");
    m_third->Draw();
    EXPECT_EQ(WhoHears("Return"), "third");
}

TEST_F(KeyRouter, SendsATopmostKeyToItsHolderOnlyWhileThatIsTheTopmostWindow)
{
    EXPECT_TRUE(m_lower->Grab("XF86More", KEYROUTER_MODE_TOPMOST));
    EXPECT_EQ(WhoHears("XF86More"), "upper");
    EXPECT_TRUE(m_lower->Grab("XF86More", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("XF86More"), "lower");
    EXPECT_TRUE(m_upper->Grab("XF86More", KEYROUTER_MODE_TOPMOST));
    EXPECT_EQ(WhoHears("XF86More"), "upper");
}

TEST_F(KeyRouter, KeepsADigitThatAWindowHadForItselfFromTheOthersForAWhile)
{
    const auto now = std::chrono::steady_clock::now;
    std::string soon;
    std::string other;
    auto released = now();
    do // until the machine was fast enough
    {
        ASSERT_TRUE(m_upper->Grab("5", KEYROUTER_MODE_EXCLUSIVE));
        ASSERT_TRUE(m_upper->Ungrab("5", KEYROUTER_MODE_EXCLUSIVE));
        ASSERT_TRUE(WaitUntil([this] { return m_remote.Ask("grabs").empty(); }));
        released = now();
        other = WhoHears("6");
        soon = WhoHears("5");
    } while (now() - released > std::chrono::milliseconds(300));
    EXPECT_EQ(soon, "");
    EXPECT_EQ(other, "upper");
    EXPECT_TRUE(m_lower->Grab("5", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_EQ(WhoHears("5"), "lower");
    EXPECT_TRUE(m_lower->Ungrab("5", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(WaitUntil([this] { return WhoHears("5") == "upper"; }));
}

TEST_F(KeyRouter, LetsAKeyUpWhereItWentDown)
{
    m_remote.Ask("down 5");
    m_third.emplace().Show();
    m_remote.Ask("up 5");
    EXPECT_EQ(m_upper->Heard(), (std::vector<std::string>{"5 down", "5 up"}));
    EXPECT_TRUE(m_third->Heard().empty());
}

TEST_F(KeyRouter, ForgetsTheGrabsAndTheHeldKeyOfAClientThatDiesOrHasDoneWithIt)
{
    EXPECT_TRUE(m_upper->Grab("XF86Exit", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_upper->Grab("Up", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(m_remote.Ask("grabs").size(), 2U);
    m_remote.Ask("down Exit");
    CloseUpper();
    EXPECT_TRUE(m_remote.Ask("grabs").empty());
    m_remote.Ask("up Exit");
    EXPECT_TRUE(m_lower->Heard().empty());
    EXPECT_EQ(WhoHears("XF86Exit"), "lower");
    EXPECT_TRUE(m_lower->Grab("XF86Exit", KEYROUTER_MODE_EXCLUSIVE));
    m_lower->Unbind();
    EXPECT_TRUE(WaitUntil([this] { return m_remote.Ask("grabs").empty(); }));
}

TEST_F(KeyRouter, RefusesAKeyThatDoesNotExist)
{
    EXPECT_FALSE(m_upper->Grab("XF86Nonsense", KEYROUTER_MODE_REGISTERED));
    EXPECT_THROW(m_remote.Ask("press Nonsense"), veskar::RemoteRefusal);
}
