#include "BaseDisplay.h"
#include "EflGuard.h"
#include "Screen.h"

#include <stdexcept>

#include <Ecore_Evas.h>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using VESKAR_APP::EFL_GUARD;

/** A screen with content of its own: one label "content". */
struct Plain : Probe<VESKAR_APP::BaseDisplay>
{
    using Probe::Probe;

    void SetTexts(const char* title, const char* subtitle, const char* bottom)
    {
        t_SetTitle(title);
        t_SetSubtitle(subtitle);
        t_SetBottomText(bottom);
    }
    Evas_Object* m_CreateWindowContent(Evas_Object* layout, Evas_Object*) override
    {
        t_SetTTSText("a < b", nullptr);
        Evas_Object* label = hasContent ? elm_label_add(layout) : nullptr;
        elm_object_text_set(label, "content");
        return label;
    }
    bool hasContent = true;
};

struct BaseDisplayTest : ScreenTest
{
    std::unique_ptr<Plain> display;

    /** The display on the screen. */
    Plain& Show(const Texts& buttons, const char* title = "", const char* subtitle = "", const char* bottom = "",
                const char* style = "C_PopupBasic_WhiteBottom", bool hasBottomText = true)
    {
        display = std::make_unique<Plain>(*this, window, buttons, style, hasBottomText);
        display->SetTexts(title, subtitle, bottom);
        tv.Forget();
        EXPECT_TRUE(display->Create());
        EXPECT_TRUE(display->Show());
        return *display;
    }
};

TEST_F(BaseDisplayTest, TheGuardGivesBackResultsAndLeavesTheMainLoopUsable)
{
    EXPECT_EQ(EFL_GUARD(elm_label_add, nullptr), nullptr);
    EXPECT_EQ(EFL_GUARD(
                  +[](int a, const char* b) { return a + b; }, 1, "guard"),
              std::string("uard"));
    EXPECT_THROW(EFL_GUARD(+[] { throw std::runtime_error("toolkit"); }), std::runtime_error);
    EFL_GUARD(+[] { EFL_GUARD(ecore_loop_time_get); }); // sections nest
    EXPECT_EQ(ecore_thread_main_loop_begin(), 1);       // none of them is still open
    EXPECT_EQ(ecore_thread_main_loop_end(), 0);
}

TEST_F(BaseDisplayTest, NeedsAWindowAndLeavesNothingOnIt)
{
    Plain orphan(*this, nullptr, {"OK"}, "", true);
    EXPECT_FALSE(orphan.Create());
    EXPECT_TRUE(orphan.Hide());

    display = std::make_unique<Plain>(*this, window, Texts{}, "", false);
    EXPECT_EQ(elm_app_base_scale_get(), 2.0);
    EXPECT_TRUE(display->Create());
    EXPECT_FALSE(evas_object_visible_get(display->t_popup)) << "it is not shown yet";
    display.reset();
    EXPECT_THAT(WidgetsOnScreen(window, "elm_popup"), IsEmpty());
}

TEST_F(BaseDisplayTest, OneTitleDocksAnyStyledScreenAtTheRight)
{
    const auto styleOf = [this](const char* title, const char* style)
    {
        return std::string(elm_object_style_get(Show({}, title, "", "", style).t_popup));
    };
    EXPECT_EQ(styleOf("Delete Kavro Operator Profile", "C_PopupBasic_WhiteBottom"), "C_PopupBasic_WhiteRightLarge");
    EXPECT_EQ(styleOf("Delete Kavro Operator Profile!", "C_PopupBasic_WhiteBottom"), "C_PopupBasic_WhiteBottom");
    EXPECT_EQ(styleOf("Delete Kavro Operator Profile", ""), "default");
}

TEST_F(BaseDisplayTest, TextsAreMarkupAboveAndBelowTheContent)
{
    const auto line = [](const std::string& text)
    {
        return "<font=Sans:style=Regular font_size=13>" + text + "</font></color>";
    };
    Show({}, "<T>", "a & b", "1\n2");
    EXPECT_EQ(TextOf(display->t_popup, "title,text"), "&lt;T&gt;");
    EXPECT_THAT(LabelTexts(display->t_popup), ElementsAre(line("a &amp; b"), "content", line("1<br/>2")));
    EXPECT_STREQ(elm_object_style_get(display->t_subtitleLabel), "popup/c_popup_bottom");
    EXPECT_THAT(tv.Did("say"), ElementsAre("say &lt;T&gt;, a &amp; b, a < b, 1<br/>2, "));

    Show({}); // the rows are there for empty texts too
    EXPECT_THAT(LabelTexts(display->t_popup), ElementsAre(line(""), "content", line("")));
    EXPECT_THAT(tv.Did("say"), ElementsAre("say , , a < b, , "));
    Show({}, "", "", "", "", false);
    EXPECT_THAT(LabelTexts(display->t_popup), ElementsAre(line(""), "content"));
    Show({}, "", "", "bottom", "", false); // a bottom text makes its line
    EXPECT_THAT(LabelTexts(display->t_popup), ElementsAre(line(""), "content", line("bottom")));

    display = std::make_unique<Plain>(*this, window, Texts{}, "", false);
    display->hasContent = false;
    display->Create();
    EXPECT_THAT(LabelTexts(display->t_popup), ElementsAre(line("")));
}

TEST_F(BaseDisplayTest, ALineIsCentredAndSeveralAreWrappedAlsoWhenUpdatedInPlace)
{
    tv.numbers["db/menu/system/accessibility/focuszoom"] = 2;
    tv.numbers["db/menu/system/accessibility/highcontrast"] = 1;
    elm_config_scale_set(2.0);
    Show({}, "", "one");
    Evas_Object* subtitle = display->t_subtitleLabel;
    EXPECT_EQ(TextOf(subtitle), "<font=Sans:style=Regular font_size=31>one</font></color>");
    double x = 0;
    double y = 0;
    evas_object_size_hint_align_get(subtitle, &x, &y);
    EXPECT_EQ(x, 0.5);
    int red = 0;
    evas_object_color_get(subtitle, &red, nullptr, nullptr, nullptr);
    EXPECT_EQ(red, 255); // white in high contrast too
    tv.numbers.clear();
    display->t_SetSubtitle("<1>\n2");
    EXPECT_EQ(TextOf(subtitle), "<font=Sans:style=Regular font_size=25>&lt;1&gt;<br/>2</font></color>");
    EXPECT_EQ(elm_label_line_wrap_get(subtitle), ELM_WRAP_WORD);
    EXPECT_EQ(display->GetNumberLinesText(subtitle, "elm.text"), 2);
    EXPECT_EQ(display->GetNumberLinesText(evas_object_rectangle_add(evas_object_evas_get(window)), "elm.text"), 0);
    EXPECT_EQ(display->GetNumberLinesText(subtitle, "no.such.part"), 0);
}

TEST_F(BaseDisplayTest, TheSetupsApplicationsAreOverlaid)
{
    Ecore_Evas* canvas = ecore_evas_ecore_evas_get(evas_object_evas_get(window));
    for (const char* application : {"org.tizen.wizard", "org.tizen.channel-search"})
    {
        tv.runningApps = {application};
        ecore_evas_layer_set(canvas, 0);
        Show({});
        EXPECT_EQ(ecore_evas_layer_get(canvas), 32767);
    }
    tv.runningApps = {"org.tizen.menu"};
    ecore_evas_layer_set(canvas, 0);
    Show({});
    EXPECT_EQ(ecore_evas_layer_get(canvas), 0);
}

TEST_F(BaseDisplayTest, UpToThreeButtonsReportTheirNumberFromOne)
{
    Show({"Yes", "<No>", "?"}, "", "", "", ""); // the default style has a place for buttons, so they can be focused
    for (Evas_Object* button : display->t_buttons)
    {
        EXPECT_STREQ(elm_object_style_get(button), "C_ButtonBasic_WhiteText");
        EXPECT_TRUE(evas_object_visible_get(button));
        Click(button);
    }
    EXPECT_EQ(TextOf(display->t_buttons[1]), "<No>");
    EXPECT_EQ(elm_object_part_content_get(display->t_popup, "button2"), display->t_buttons[1]);
    EXPECT_EQ(Focused(window), display->t_buttons[0]);
    EXPECT_THAT(answers, ElementsAre("button 1", "button 2", "button 3"));

    answers.clear();
    tv.Forget();
    Plain::s_OnButtonClicked(display.get(), window, nullptr);
    Plain::s_OnButtonClicked(nullptr, display->t_buttons[0], nullptr);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(BaseDisplayTest, AnEmptyLabelHidesItsButtonAndOnlyTheFirstLabelIsGivenTheFocus)
{
    const auto areVisible = [this](bool first, bool second)
    {
        return evas_object_visible_get(display->t_buttons[0]) == first &&
               evas_object_visible_get(display->t_buttons[1]) == second;
    };
    Show({"", "No"});
    EXPECT_TRUE(areVisible(false, true));
    display->t_UpdateButtonLabels({"", "No"});
    EXPECT_THAT(display->t_buttons, testing::Not(testing::Contains(Focused(window))));
    display->t_UpdateButtonLabels({"Yes", ""});
    EXPECT_TRUE(areVisible(true, false));
    EXPECT_EQ(Focused(window), display->t_buttons[0]);
    display->t_UpdateButtonLabels({"Other"});
    EXPECT_EQ(TextOf(display->t_buttons[0]), "Yes");
}

TEST_F(BaseDisplayTest, OfMoreThanThreeLabelsNoneIsShown)
{
    Show({"1", "2", "3", "4"});
    EXPECT_EQ(elm_object_part_content_get(display->t_popup, "button3"), display->t_buttons[2]);
    EXPECT_EQ(TextOf(display->t_buttons[0]), "");
    Show({});
    EXPECT_EQ(display->t_buttons[0], nullptr);
}

TEST_F(BaseDisplayTest, ExitAndBackAreToldByTheirWholeNames)
{
    Show({});
    for (const char* key : {"XF86Exit", "XF86Back", "Return", "XF86Back2", "XF86Exit2", "xf86exit"})
    {
        Press(display->t_popup, key);
    }
    EXPECT_THAT(answers, ElementsAre("exit", "back", "key", "key", "key", "key"));
}

TEST_F(BaseDisplayTest, TheNumberPadIsAskedForWhereItExistsAndIsNotAlreadyAsWanted)
{
    constexpr const char* SHOWN = "memory/function-osd/number_pad_show";
    constexpr const char* FEATURE = "com.brelmon/featureconf/bt_profile_bt_smart_control";
    Show({});
    const auto ask = [this](const std::string& what)
    {
        tv.Forget();
        what == "hide" ? display->t_HideNumPad() : display->t_ShowNumPad(what == "numbers");
        EXPECT_EQ(tv.liveRequests, 0);
        auto launches = tv.Did("launch");
        EXPECT_TRUE(launches.empty() || tv.linesBeforeDestroyed == tv.log.size()) << "told too late how it went";
        return launches;
    };
    EXPECT_THAT(ask("show") + ask("hide"), IsEmpty()) << "the TV does not say that it has one";
    tv.features[FEATURE] = false;
    EXPECT_THAT(ask("show") + ask("hide"), IsEmpty());
    tv.features[FEATURE] = true;
    for (const int value : {0, 2})
    {
        tv.numbers[SHOWN] = value;
        EXPECT_THAT(ask("show"), ElementsAre("launch org.tizen.function-osd cmd=show tts=skip type=number_zip"));
        EXPECT_THAT(ask("numbers"), ElementsAre("launch org.tizen.function-osd cmd=show tts=skip type=number"));
        EXPECT_THAT(ask("hide"), IsEmpty());
    }
    tv.numbers[SHOWN] = 1;
    EXPECT_THAT(ask("show"), IsEmpty());
    EXPECT_THAT(ask("hide"), ElementsAre("launch org.tizen.function-osd cmd=hide"));
    tv.failing = {"app_control_create"};
    EXPECT_THAT(ask("hide"), IsEmpty());
}

} // namespace
