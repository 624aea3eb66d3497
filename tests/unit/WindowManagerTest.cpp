#include "WindowManager.h"

#include "BaseDisplay.h"
#include "Screen.h"

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using VESKAR_APP::BaseDisplay;
using VESKAR_APP::WindowManager;

constexpr const char* CLOSED_7 = "answer 7 255 2 0 0 \"\"";
const Texts RELEASED{"release navigation", "release channel", "release exit", "release number", "release PVR"};

struct WindowManagerTest : TvTest
{
    std::unique_ptr<WindowManager> manager = std::make_unique<WindowManager>([] {}, [] {});

    WindowManagerTest() { tv.Forget(); }

    bool Show(int uiId, unsigned char sourceId, bool noClose = false)
    {
        return manager->ShowMessage(uiId, sourceId, "T", "S", "B", "text", {"OK"}, noClose);
    }
    static Evas_Object* Popup()
    {
        const std::vector<Evas_Object*> popups = WidgetsOnScreen(tv.window, "elm_popup");
        EXPECT_LE(popups.size(), 1U);
        return popups.empty() ? nullptr : popups.front();
    }
    /** What one call did. */
    template <typename Call>
    Texts Do(Call call)
    {
        tv.Forget();
        call();
        return tv.DeedsByKeyGroup();
    }
    /** Nothing is shown, nothing is held, and the ids are forgotten. */
    void ExpectIdle()
    {
        EXPECT_FALSE(evas_object_visible_get(tv.window));
        EXPECT_THAT(tv.heldKeys, IsEmpty());
        EXPECT_THAT(Do([this] { manager->Exit(); }), ElementsAre("iconify"));
    }
};

TEST_F(WindowManagerTest, AScreenIsBuiltBeforeKeysAndWindowAreTakenAndTheOldOneGoesFirst)
{
    const Texts built{"say T, S, text, B, "};
    EXPECT_THAT(Do([this] { Show(7, 255); }),
                (built + RELEASED + Texts{"release navigation", "grab navigation", "activate", "restore"}));
    const Texts closed = Texts{"iconify", CLOSED_7} + RELEASED;
    EXPECT_THAT(Do([this] { Show(8, 254); }),
                (closed + built + RELEASED + Texts{"grab channel", "activate", "restore"}));
    EXPECT_TRUE(evas_object_visible_get(tv.window) && evas_object_visible_get(Popup()));
}

TEST_F(WindowManagerTest, TheSourceDecidesOnKeysAndClock)
{
    const std::tuple<unsigned char, bool, const char*, bool> screens[] = {
        {254, false, "grab channel", false},
        {255, false, "grab navigation", true},
        {255, true, "grab navigation", false},
        {253, false, "grab navigation", true},
    };
    for (const auto& [source, noClose, keys, clock] : screens)
    {
        EXPECT_THAT(Do([&, source = source, noClose = noClose] { EXPECT_TRUE(Show(7, source, noClose)); }),
                    Contains(keys));
        EXPECT_THAT(tv.heldKeys, SizeIs(source == 254 ? 72 : 7));
        EXPECT_EQ(tv.Logged(DLOG_DEBUG, "milliseconds:30000"), clock);

        Do([this] { manager->KeyPressed(); }); // a key starts it, whatever the screen's request said
        EXPECT_EQ(tv.Logged(DLOG_DEBUG, "milliseconds:30000"), source != 254);
        EXPECT_THAT(tv.deeds, IsEmpty());
    }
}

TEST_F(WindowManagerTest, EachKindOfScreenIsBuiltFromItsArguments)
{
    const Texts rows{"head", "row"};
    WindowManager& show = *manager;
    const auto expect = [](bool shown, const char* widget, bool clock, const std::string& spoken)
    {
        EXPECT_TRUE(shown);
        EXPECT_FALSE(Widgets(Popup(), widget).empty()) << widget;
        EXPECT_EQ(tv.Logged(DLOG_INFO, "Start visible timer"), clock);
        EXPECT_THAT(tv.Did("say"), ElementsAre("say T, " + spoken));
        tv.Forget();
    };
    expect(show.ShowMmiMessage(7, 255, "T", "S", "B", "X", {}, true), "elm_label", false, "S, X, B, ");
    expect(show.ShowPinManager(7, 255, "T", "no", "S", 4, "B"), "elm_button", true, "S, , B, ");
    expect(show.ShowProgress(7, 255, "T", "S", "B", 40), "elm_progressbar", true, "S, , , ");
    expect(show.ShowLoading(7, 255, "T", {}, 3), "elm_progressbar", true, ", , , ");
    expect(show.ShowImage(7, 255, "T", "S", "B", "/i", 4, 6, {}, false), "elm_image", true, "S, , B, ");
    const char* menu = "S, head, row, , B, ";
    expect(show.ShowList(7, 255, "T", "S", "B", rows, "L", true, {"OK"}, true), "elm_genlist", true, menu);
    expect(show.ShowMultipleList(7, 255, "T", "S", "B", rows, "L", true, {}, true), "elm_genlist", true, menu);
    expect(show.ShowMultipleImageList(7, 255, "T", "S", "B", rows, "L", true, {"OK"}, {""}, 1, 1, true), "elm_genlist",
           false, menu);
    EXPECT_TRUE(show.ShowTestPopup(7, 255, 5));
}

TEST_F(WindowManagerTest, APinAlsoTakesTheNumberAndMediaKeys)
{
    Do([this] { manager->ShowPinManager(7, 254, "", "", "", 4, ""); });
    EXPECT_EQ(tv.heldKeys.size(), 72U + 10U + 8U);
    EXPECT_EQ(tv.heldKeys.count({"7", 4}) + tv.heldKeys.count({"XF86AudioPlay", 5}), 2U);
    manager->BackKey();
    ExpectIdle();
}

TEST_F(WindowManagerTest, EachAnswerCarriesTheScreensIdsAndEndsIt)
{
    const std::pair<std::function<void(WindowManager&)>, std::string> answers[] = {
        {[](auto& m) { m.PinEntered("1234"); }, "answer 7 3 0 0 0 \"1234\""},
        {[](auto& m) { m.ItemsSelected("13"); }, "answer 7 3 0 0 0 \"13\""},
        {[](auto& m) { m.ItemSelected(255); }, "answer 7 3 0 0 255 \"\""},
        {[](auto& m) { m.ButtonPressed(1); }, "answer 7 3 0 1 0 \"\""},
        {[](auto& m) { m.BackKey(); }, "answer 7 3 3 0 0 \"\""},
        {[](auto& m) { m.ExitKey(); }, "answer 7 3 2 0 0 \"\""},
        {[](auto& m) { m.Exit(); }, "answer 7 3 2 0 0 \"\""},
    };
    for (const auto& [answer, sent] : answers)
    {
        Show(7, 3);
        tv.Forget();
        answer(*manager);
        const Texts hidden(sent.find(" 3 2 ") == std::string::npos ? 0 : 1, "iconify");
        EXPECT_EQ(tv.DeedsByKeyGroup(), hidden + Texts{sent} + RELEASED);
        EXPECT_FALSE(evas_object_visible_get(Popup())); // hidden, not deleted
        ExpectIdle();

        tv.Forget();
        answer(*manager);
        EXPECT_EQ(tv.deeds, hidden);
    }
}

TEST_F(WindowManagerTest, AScreenWithoutAnIdOrWithTheIdleSourceIsNeverAnswered)
{
    Show(0, 255);
    EXPECT_THAT(Do([this] { manager->BackKey(); }), IsEmpty());
    Show(7, 100);
    EXPECT_THAT(Do([this] { manager->PinEntered("1"); }), IsEmpty());
    EXPECT_TRUE(evas_object_visible_get(Popup()));
}

TEST_F(WindowManagerTest, ACloseNeedsTheIdAndAnswersTheMiddlewareAlone)
{
    Show(7, 255);
    EXPECT_THAT(Do([this] { EXPECT_FALSE(manager->Close(5, 255)); }), IsEmpty());
    EXPECT_TRUE(evas_object_visible_get(Popup()));

    EXPECT_EQ(Do([this] { manager->Close(7, 253); }), RELEASED);
    ExpectIdle();
    for (const int id : {7, 0})
    {
        Show(7, 255);
        EXPECT_EQ(Do([&] { manager->Close(id, 254); }), Texts{CLOSED_7} + RELEASED);
        ExpectIdle();
    }
}

TEST_F(WindowManagerTest, AProgressIsUpdatedInPlaceForTheSameIdsAlone)
{
    manager->ShowProgress(7, 255, "T", "S", "Cancel", 10);
    Evas_Object* popup = Popup();
    EXPECT_THAT(Do([this] { EXPECT_TRUE(manager->ShowProgress(7, 255, "T2", "S2", "Stop", 40)); }), IsEmpty());
    EXPECT_FALSE(tv.Logged(DLOG_INFO, "Start visible timer"));
    EXPECT_EQ(Popup(), popup);
    EXPECT_EQ(TextOf(popup, "title,text"), "T2");

    EXPECT_THAT(Do([this] { manager->ShowProgress(7, 254, "T", "S", "", 50); }), Contains(CLOSED_7));
    EXPECT_THAT(Do([this] { manager->ShowProgress(8, 254, "T", "S", "", 50); }), Contains("answer 7 254 2 0 0 \"\""));
    Show(8, 254);
    EXPECT_THAT(Do([this] { manager->ShowProgress(8, 254, "T", "S", "", 60); }), Contains("answer 8 254 2 0 0 \"\""));
}

/** A screen that cannot be created, or else not shown. */
struct Faulty : BaseDisplay
{
    Faulty(WindowManager& manager, bool creates) : BaseDisplay(manager, tv.window, {}, "", false), mCreates(creates) {}
    bool t_Create() override { return mCreates; }
    bool t_Show() override { return false; }
    bool mCreates;
};

// Only a screen made for the test can fail. Presenting is private; an explicit instantiation may name it.
bool Present(WindowManager& manager, std::unique_ptr<BaseDisplay> display);
template <auto present>
struct Open
{
    friend bool Present(WindowManager& manager, std::unique_ptr<BaseDisplay> display)
    {
        return (manager.*present)(std::move(display), 8, 255, false);
    }
};
template struct Open<&WindowManager::m_Present>;

TEST_F(WindowManagerTest, AScreenThatCannotBeBuiltStillClosesTheOldOne)
{
    Show(7, 255);
    EXPECT_FALSE(Present(*manager, nullptr));
    EXPECT_TRUE(evas_object_visible_get(Popup()));
    for (const bool creates : {false, true})
    {
        Show(7, 255);
        EXPECT_EQ(Do([&] { EXPECT_FALSE(Present(*manager, std::make_unique<Faulty>(*manager, creates))); }),
                  (Texts{"iconify", CLOSED_7} + RELEASED));
        EXPECT_TRUE(tv.Logged(DLOG_INFO, "Start visible timer"));
        EXPECT_EQ(Popup(), nullptr);
        ExpectIdle();
    }
}

TEST_F(WindowManagerTest, PauseAnswersAndArmsTheIdleClockWhichAScreenStops)
{
    EXPECT_THAT(Do([this] { manager->Resume(); }), ElementsAre("activate"));
    Show(7, 255);
    EXPECT_EQ(Do([this] { manager->Pause(); }), (Texts{"iconify", CLOSED_7} + RELEASED));
    EXPECT_TRUE(tv.Logged(DLOG_DEBUG, "milliseconds:2000"));
    EXPECT_THAT(Do([this] { manager->Resume(); }), ElementsAre("activate", "release navigation", "grab navigation"));

    Show(7, 254);
    EXPECT_THAT(Do([this] { manager->Resume(); }), ElementsAre("activate", "grab channel"));
}

TEST_F(WindowManagerTest, AHotelsFactoryMenuComesBackAfterEachScreen)
{
    constexpr const char* HOTEL = "com.brelmon/featureconf/product.b2b_option_support";
    constexpr const char* MODE = "memory/ephotel/hotelmenu/hotelfactorymode";
    using Numbers = std::map<std::string, int>;
    using Features = std::map<std::string, bool>;
    const auto launchesWith = [this](const Features& features, const Numbers& numbers)
    {
        tv.features = features;
        tv.numbers = numbers;
        Show(7, 255);
        Do([this] { manager->BackKey(); });
        EXPECT_EQ(tv.liveRequests, 0);
        return tv.Did("launch");
    };
    EXPECT_THAT(launchesWith({}, {{MODE, 1}}), IsEmpty()) << "the TV does not say that it is a hotel's";
    EXPECT_THAT(launchesWith({{HOTEL, false}}, {{MODE, 1}}), IsEmpty());
    EXPECT_THAT(launchesWith({{HOTEL, true}}, {{MODE, 2}}), IsEmpty());
    EXPECT_THAT(launchesWith({{HOTEL, true}}, {}), IsEmpty());
    EXPECT_THAT(launchesWith({{HOTEL, true}}, {{MODE, 1}}), ElementsAre("launch org.tizen.ep-hotel-factory"));
    tv.failing = {"app_control_send_launch_request"};
    launchesWith({{HOTEL, true}}, {{MODE, 1}});
    tv.failing = {"app_control_create"};
    EXPECT_THAT(launchesWith({{HOTEL, true}}, {{MODE, 1}}), IsEmpty());
}

TEST_F(WindowManagerTest, WithoutAWindowOrAControllerNothingIsShownAndNothingBreaks)
{
    tv.hasController = false;
    manager = std::make_unique<WindowManager>([] {}, [] {});
    EXPECT_FALSE(evas_object_visible_get(tv.window));
    EXPECT_THAT(tv.Did("ea"), IsEmpty());
    EXPECT_TRUE(Show(7, 255));
    manager->ButtonPressed(1);
    ExpectIdle();

    tv.hasController = true;
    tv.failing = {"elm_win_add"};
    manager = std::make_unique<WindowManager>([] {}, [] {});
    EXPECT_FALSE(Show(7, 255));
    EXPECT_FALSE(manager->ShowPinManager(7, 255, "T", "", "", 4, ""));
    EXPECT_FALSE(manager->ShowList(7, 255, "T", "", "", {"a"}, "L", false, {}, true));
    manager->Pause();
    manager->Resume();
    EXPECT_THAT(tv.Did("answer"), IsEmpty());
}

TEST_F(WindowManagerTest, TheDestructorGivesTheKeysBackWithoutAnAnswer)
{
    Show(7, 255);
    EXPECT_EQ(Do([this] { manager.reset(); }),
              (RELEASED + Texts{"release exit", "release channel", "release navigation", "release number",
                                "release PVR", "router finalized"}));
    EXPECT_THAT(tv.heldKeys, IsEmpty());
}

TEST_F(WindowManagerTest, TheTestCasesRunFrom0To22AndAnswerNobody)
{
    for (int id = 0; id <= 22; ++id)
    {
        EXPECT_TRUE(manager->Test(id)) << id;
        EXPECT_TRUE(evas_object_visible_get(Popup())) << id;
        EXPECT_EQ(tv.Logged(DLOG_INFO, "Start visible timer"), id != 4) << id;
        tv.Forget();
    }
    EXPECT_FALSE(manager->Test(23) || manager->Test(-5));
    EXPECT_THAT(tv.deeds, IsEmpty());
    EXPECT_THAT(Do([this] { manager->ExitKey(); }), ElementsAre("iconify"));
}

} // namespace
