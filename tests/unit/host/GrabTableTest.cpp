/** Who holds which key, in the compositor. */
#include "compositor/keys/GrabTable.h"

#include <gtest/gtest.h>

using namespace veskar;

namespace
{

/** As much of a client's surface as the table uses; destroyed with the test. */
class Window
{
public:
    Window() { wl_signal_init(&m_surface.destroy_signal); }
    ~Window() { wl_signal_emit(&m_surface.destroy_signal, &m_surface); }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /** The table uses a client only as an identity. */
    wl_client* Client() { return reinterpret_cast<wl_client*>(this); }
    weston_surface* Surface() { return &m_surface; }

private:
    weston_surface m_surface{};
};

class GrabTableTest : public testing::Test
{
protected:
    bool Add(Window& window, const Key& key, GrabMode mode)
    {
        return m_grabs.Add(window.Client(), window.Surface(), key, mode);
    }

    const Key& m_back = *KeyByName("XF86Back");
    const Key& m_exit = *KeyByName("XF86Exit");
    GrabTable m_grabs;
};

} // namespace

TEST_F(GrabTableTest, GivesAKeyExclusivelyToOneSurfaceAtATime)
{
    Window first;
    Window second;
    EXPECT_TRUE(Add(first, m_back, GrabMode::Exclusive));
    EXPECT_TRUE(Add(first, m_back, GrabMode::Exclusive)) << "it holds it already";
    EXPECT_FALSE(Add(second, m_back, GrabMode::Exclusive));
    EXPECT_TRUE(Add(second, m_exit, GrabMode::Exclusive)) << "another key";
    EXPECT_TRUE(Add(second, m_back, GrabMode::Topmost)) << "another mode";
    EXPECT_EQ(m_grabs.ExclusiveHolder(m_back), first.Surface());

    m_grabs.Remove(first.Surface(), m_back, GrabMode::Exclusive);
    EXPECT_EQ(m_grabs.ExclusiveHolder(m_back), nullptr);
    EXPECT_TRUE(Add(second, m_back, GrabMode::Exclusive));
}

TEST_F(GrabTableTest, ReplacesTheOtherStrengthAndKeepsARegistrationBeside)
{
    Window window;
    Add(window, m_exit, GrabMode::Exclusive);
    Add(window, m_back, GrabMode::Registered);
    Add(window, m_back, GrabMode::Exclusive);
    Add(window, m_back, GrabMode::Topmost);
    EXPECT_TRUE(m_grabs.Holds(window.Surface(), m_back, GrabMode::Registered));
    EXPECT_TRUE(m_grabs.Holds(window.Surface(), m_back, GrabMode::Topmost));
    EXPECT_FALSE(m_grabs.Holds(window.Surface(), m_back, GrabMode::Exclusive));
    EXPECT_TRUE(m_grabs.Holds(window.Surface(), m_exit, GrabMode::Exclusive));
    EXPECT_EQ(m_grabs.All().size(), 3U);
}

TEST_F(GrabTableTest, RemovesNothingButTheGrabThatIsNamed)
{
    Window window;
    Window other;
    Add(window, m_back, GrabMode::Topmost);
    Add(other, m_back, GrabMode::Topmost);
    m_grabs.Remove(window.Surface(), m_back, GrabMode::Exclusive);
    m_grabs.Remove(window.Surface(), m_exit, GrabMode::Topmost);
    EXPECT_EQ(m_grabs.All().size(), 2U);
    m_grabs.Remove(window.Surface(), m_back, GrabMode::Topmost);
    EXPECT_FALSE(m_grabs.Holds(window.Surface(), m_back, GrabMode::Topmost));
    EXPECT_TRUE(m_grabs.Holds(other.Surface(), m_back, GrabMode::Topmost));
}

TEST_F(GrabTableTest, ForgetsASurfaceThatIsDestroyedAndAClientThatLeaves)
{
    Window staying;
    Add(staying, m_back, GrabMode::Registered);
    {
        Window going;
        Add(going, m_back, GrabMode::Exclusive);
        Add(going, m_exit, GrabMode::Registered);
    }
    EXPECT_EQ(m_grabs.All().size(), 1U);
    EXPECT_TRUE(m_grabs.Holds(staying.Surface(), m_back, GrabMode::Registered));

    Window leaving;
    Add(leaving, m_back, GrabMode::Registered);
    m_grabs.RemoveClient(leaving.Client());
    EXPECT_EQ(m_grabs.All().size(), 1U);
    EXPECT_FALSE(m_grabs.Holds(leaving.Surface(), m_back, GrabMode::Registered));
}

TEST_F(GrabTableTest, FindsTheHolderThatIsAccepted)
{
    Window first;
    Window second;
    Add(first, m_back, GrabMode::Registered);
    Add(second, m_back, GrabMode::Registered);
    const auto isSecond = [&second](weston_surface* surface)
    {
        return surface == second.Surface();
    };
    EXPECT_EQ(m_grabs.Holder(m_back, GrabMode::Registered, isSecond), second.Surface());
    EXPECT_EQ(m_grabs.Holder(m_back, GrabMode::Topmost, isSecond), nullptr);
    EXPECT_EQ(m_grabs.Holder(m_exit, GrabMode::Registered, isSecond), nullptr);
}

TEST_F(GrabTableTest, TellsOfEachGrabThatEndsAndOfNoneThatIsReplaced)
{
    std::vector<std::string> ended;
    m_grabs =
        GrabTable([&](const Key& key, GrabMode mode) { ended.push_back(std::string(key.name) + " " + NameOf(mode)); });
    Window window;
    Add(window, m_back, GrabMode::Topmost);
    Add(window, m_back, GrabMode::Exclusive);
    EXPECT_TRUE(ended.empty());
    m_grabs.Remove(window.Surface(), m_back, GrabMode::Exclusive);
    EXPECT_EQ(ended, (std::vector<std::string>{"XF86Back exclusive"}));
    Add(window, m_exit, GrabMode::Registered);
    m_grabs.RemoveClient(window.Client());
    EXPECT_EQ(ended.back(), "XF86Exit registered");
    {
        Window gone;
        Add(gone, m_back, GrabMode::Topmost);
    }
    EXPECT_EQ(ended.size(), 3U);
}
