#include "KeySubscriber.h"
#include "Screen.h"

namespace
{

using namespace testing;
using VESKAR_APP::KeySubscriber;

constexpr const char* NAVIGATION = "XF86Exit:5 XF86Back:5 Return:5 Up:5 Left:5 Right:5 Down:5";
constexpr const char* PVR = "XF86AudioRewind:5 XF86AudioPause:5 XF86AudioNext:5 XF86AudioRecord:5 XF86AudioPlay:5 "
                            "XF86AudioStop:5 XF86PlayBack:5 XF86More:5";

struct KeySubscriberTest : ScreenTest
{
    std::unique_ptr<KeySubscriber> keys = std::make_unique<KeySubscriber>(window);

    /** What one operation did. */
    Texts Do(void (KeySubscriber::*operation)())
    {
        tv.Forget();
        (keys.get()->*operation)();
        return tv.deeds;
    }
};

TEST_F(KeySubscriberTest, ConnectsToTheRouterThatTheCompositorAdvertises)
{
    EXPECT_THAT(tv.deeds, ElementsAre("router 42"));
    tv.Forget();
    tv.globals = {{"tizen_keyrouter2", 1, 1, nullptr}};
    const KeySubscriber withoutRouter(window);
    tv.hasWaylandDisplay = false;
    const KeySubscriber withoutDisplay(window);
    EXPECT_THAT(tv.deeds, IsEmpty());
    EXPECT_THAT(tv.Log(DLOG_WARN), SizeIs(2));
}

TEST_F(KeySubscriberTest, SingleKeysAreTakenExclusivelyOneByOne)
{
    EXPECT_THAT(Do(&KeySubscriber::LockNumberKeys), AllOf(SizeIs(10), Each(MatchesRegex("grab [0-9]:4"))));
    EXPECT_THAT(tv.heldKeys, SizeIs(10));
    EXPECT_THAT(Do(&KeySubscriber::UnlockNumberKeys), SizeIs(10));
    EXPECT_THAT(tv.heldKeys, IsEmpty());
    EXPECT_THAT(Do(&KeySubscriber::LockExitKey), ElementsAre("grab XF86Exit:4"));
    EXPECT_THAT(Do(&KeySubscriber::UnlockExitKey), ElementsAre("release XF86Exit:4"));
    EXPECT_THAT(Do(&KeySubscriber::LockChannelChangeKeys), SizeIs(80)); // some names are in it twice
    EXPECT_THAT(tv.heldKeys, AllOf(SizeIs(72), Each(Pair(StartsWith("XF86"), 4))));
    for (const char* key : {"RaiseChannel", "LowerChannel", "PreviousChannel", "ChannelList", "ChannelGuide", "Home",
                            "SysMenu", "Search", "TV", "Hdmi", "PanelUp", "PanelDown", "Netflix", "Amazon", "Apps"})
    {
        EXPECT_EQ(tv.heldKeys.count({std::string("XF86") + key, 4}), 1U) << key << " leads away from the screen";
    }
    EXPECT_THAT(Do(&KeySubscriber::UnlockChannelChangeKeys), AllOf(SizeIs(80), Each(StartsWith("release XF86"))));
    EXPECT_THAT(tv.heldKeys, IsEmpty());
    EXPECT_THAT(tv.Log(DLOG_WARN), IsEmpty());
}

TEST_F(KeySubscriberTest, AListReleasesItsEarlierRegistrationFirst)
{
    const std::string navigation = NAVIGATION;
    const std::string pvr = PVR;
    EXPECT_THAT(Do(&KeySubscriber::LockNavigationKeys), ElementsAre("release " + navigation, "grab " + navigation));
    EXPECT_THAT(Do(&KeySubscriber::LockPVRKeys), ElementsAre("release " + pvr, "grab " + pvr));
    EXPECT_EQ(tv.heldKeys.size(), 15U);
    EXPECT_THAT(Do(&KeySubscriber::UnlockNavigationKeys), ElementsAre("release " + navigation));
    EXPECT_THAT(Do(&KeySubscriber::UnlockPVRKeys), ElementsAre("release " + pvr));
    EXPECT_THAT(tv.heldKeys, IsEmpty());

    tv.failing = {"KeyRouter_UnSet_KeyList"};
    EXPECT_EQ(Do(&KeySubscriber::LockNavigationKeys).size(), 1U);
}

TEST_F(KeySubscriberTest, AKeyHeldBySomebodyElseIsTakenTopmostWithoutAWarning)
{
    tv.refusedKeys = {{"3", 4}, {"5", 4}, {"5", 2}};
    Do(&KeySubscriber::LockNumberKeys);
    EXPECT_EQ(tv.heldKeys.size(), 9U); // "5" is not among them
    EXPECT_EQ(tv.heldKeys.count({"3", 2}), 1U);
    EXPECT_EQ(tv.heldKeys.count({"4", 4}), 1U);
    EXPECT_THAT(tv.Log(DLOG_WARN), ElementsAre("Failed to register for grab keys"));

    Do(&KeySubscriber::UnlockNumberKeys);
    EXPECT_THAT(tv.heldKeys, IsEmpty());
    EXPECT_THAT(tv.Log(DLOG_WARN), IsEmpty());
    tv.failing = {"KeyRouter_UnSet_KeyList"};
    EXPECT_THAT(Do(&KeySubscriber::UnlockExitKey), ElementsAre("release XF86Exit:4", "release XF86Exit:2"));
}

TEST_F(KeySubscriberTest, WithoutADisplayNavigationKeysAreNotTakenButGivenBack)
{
    tv.hasWaylandDisplay = false;
    keys = std::make_unique<KeySubscriber>(window);
    EXPECT_THAT(Do(&KeySubscriber::LockNavigationKeys), IsEmpty());
    EXPECT_EQ(Do(&KeySubscriber::UnlockNavigationKeys).size(), 1U);
}

} // namespace
