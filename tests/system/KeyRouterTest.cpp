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
        // The compositor may still have to notice that the clients of the test before have gone.
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

TEST_F(KeyRouter, sends_a_key_that_nobody_grabbed_to_the_window_with_the_focus)
{
    EXPECT_EQ(WhoHears("Up"), "upper");
    CloseUpper();
    EXPECT_EQ(WhoHears("Up"), "lower");
}

TEST_F(KeyRouter, sends_an_exclusive_key_to_its_holder_whatever_others_asked_for)
{
    EXPECT_TRUE(m_upper->Grab("XF86Back", KEYROUTER_MODE_REGISTERED));
    EXPECT_TRUE(m_upper->Grab("XF86Back", KEYROUTER_MODE_TOPMOST));
    EXPECT_TRUE(m_lower->Grab("XF86Back", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_EQ(WhoHears("XF86Back"), "lower");
    EXPECT_TRUE(m_lower->Ungrab("XF86Back", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_EQ(WhoHears("XF86Back"), "upper");
}

TEST_F(KeyRouter, gives_a_key_exclusively_to_one_window_at_a_time)
{
    EXPECT_TRUE(m_lower->Grab("7", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_FALSE(m_upper->Grab("7", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_upper->Grab("7", KEYROUTER_MODE_TOPMOST));
    EXPECT_EQ(WhoHears("7"), "lower");
    EXPECT_TRUE(m_lower->Ungrab("7", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_upper->Grab("7", KEYROUTER_MODE_EXCLUSIVE));
}

TEST_F(KeyRouter, sends_to_a_window_that_is_not_shown_only_what_it_holds_exclusively)
{
    m_third.emplace();
    EXPECT_TRUE(m_third->Grab("XF86Exit", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_third->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("XF86Exit"), "third");
    EXPECT_EQ(WhoHears("Return"), "upper");
}

TEST_F(KeyRouter, sends_a_registered_key_to_the_topmost_window_that_registered_it)
{
    EXPECT_TRUE(m_lower->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("Return"), "lower");
    EXPECT_TRUE(m_upper->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("Return"), "upper");
}

TEST_F(KeyRouter, sends_a_registered_key_to_a_window_whose_picture_is_on_the_way_when_no_other_registered_it)
{
    m_third.emplace().BeginToShow();
    EXPECT_TRUE(m_third->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("Return"), "third");
    EXPECT_TRUE(m_lower->Grab("Return", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("Return"), "lower");
    m_third->Draw();
    EXPECT_EQ(WhoHears("Return"), "third");
}

TEST_F(KeyRouter, sends_a_topmost_key_to_its_holder_only_while_that_is_the_topmost_window)
{
    EXPECT_TRUE(m_lower->Grab("XF86More", KEYROUTER_MODE_TOPMOST));
    EXPECT_EQ(WhoHears("XF86More"), "upper");
    EXPECT_TRUE(m_lower->Grab("XF86More", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(WhoHears("XF86More"), "lower");
    EXPECT_TRUE(m_upper->Grab("XF86More", KEYROUTER_MODE_TOPMOST));
    EXPECT_EQ(WhoHears("XF86More"), "upper");
}

TEST_F(KeyRouter, lets_a_key_up_where_it_went_down)
{
    m_remote.Ask("down 5");
    m_third.emplace().Show();
    m_remote.Ask("up 5");
    EXPECT_EQ(m_upper->Heard(), (std::vector<std::string>{"5 down", "5 up"}));
    EXPECT_TRUE(m_third->Heard().empty());
}

TEST_F(KeyRouter, gives_the_focus_back_after_a_key_that_went_elsewhere)
{
    EXPECT_TRUE(m_lower->Grab("1", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_EQ(WhoHears("1"), "lower");
    EXPECT_TRUE(m_upper->HasFocus());
    EXPECT_FALSE(m_lower->HasFocus());
}

TEST_F(KeyRouter, forgets_the_grabs_and_the_held_key_of_a_client_that_dies)
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
}

TEST_F(KeyRouter, forgets_the_grabs_of_a_client_that_has_done_with_it)
{
    EXPECT_TRUE(m_upper->Grab("XF86Exit", KEYROUTER_MODE_EXCLUSIVE));
    m_upper->Unbind();
    EXPECT_TRUE(WaitUntil([this] { return m_remote.Ask("grabs").empty(); }));
}

TEST_F(KeyRouter, releases_what_is_not_held_but_not_what_is_held_in_the_other_strength)
{
    EXPECT_TRUE(m_upper->Ungrab("XF86Info", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_upper->Grab("XF86Info", KEYROUTER_MODE_TOPMOST));
    EXPECT_FALSE(m_upper->Ungrab("XF86Info", KEYROUTER_MODE_EXCLUSIVE));
    EXPECT_TRUE(m_upper->Ungrab("XF86Info", KEYROUTER_MODE_REGISTERED));
    EXPECT_EQ(m_remote.Ask("grabs").size(), 1U);
    EXPECT_TRUE(m_upper->Ungrab("XF86Info", KEYROUTER_MODE_TOPMOST));
    EXPECT_TRUE(m_remote.Ask("grabs").empty());
}

TEST_F(KeyRouter, refuses_a_key_that_does_not_exist)
{
    EXPECT_FALSE(m_upper->Grab("XF86Nonsense", KEYROUTER_MODE_REGISTERED));
    EXPECT_THROW(m_remote.Ask("press Nonsense"), veskar::RemoteRefusal);
}

TEST_F(KeyRouter, lies_in_a_compositor_that_shows_lower_windows_through_the_upper_ones)
{
    const Picture both = Shot();
    CloseUpper();
    EXPECT_NE(both, Shot());
}
