#include "ImagePopup.h"
#include "LoadingPopup.h"
#include "PinEntry.h"
#include "ProgressPopup.h"
#include "Screen.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

struct PinEntryTest : ScreenTest
{
    using Pin = Probe<VESKAR_APP::PinEntry>;
    std::unique_ptr<Pin> entry;

    void Show()
    {
        entry = std::make_unique<Pin>(*this, "T", "not shown", "S", 6, "B", window);
        ASSERT_TRUE(entry->Create());
        ASSERT_TRUE(entry->Show());
    }
    Evas_Object* Field() { return Widgets(entry->t_popup, "elm_button").front(); }
    void Type(std::initializer_list<const char*> keys)
    {
        for (const char* key : keys)
        {
            Press(Field(), key);
        }
    }
};

TEST_F(PinEntryTest, AsksForFourDigitsWhateverTheRequestSays)
{
    Show();
    EXPECT_THAT(tv.Did("pin"), ElementsAre("pin 4", "pin reset"));
    EXPECT_THAT(tv.Did("say"), ElementsAre("say T, S, , B, "));
    EXPECT_EQ(Focused(window), Field());
    elm_object_focus_set(Field(), EINA_FALSE);
    Click(Field());
    EXPECT_EQ(Focused(window), Field());
    entry->t_OnButtonClicked(1);
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(PinEntryTest, TheKeyThatCompletesTheDigitsReportsThem)
{
    Show();
    Type({"BackSpace", "KP_1", "12", "XF86Back"}); // no digits
    EXPECT_THAT(answers, ElementsAre("key", "key", "key", "back"));
    answers.clear();
    Type({"9", "BackSpace", "1", "2", "BackSpace", "3", "4"});
    EXPECT_EQ(answers, Texts(7, "key"));
    answers.clear();
    Type({"5", "6"});
    EXPECT_THAT(answers, ElementsAre("pin 1345", "key", "pin 13456", "key"));
}

TEST_F(PinEntryTest, MoreOpensTheNumberPadWhichGoesWithTheScreen)
{
    tv.features["com.brelmon/featureconf/bt_profile_bt_smart_control"] = true;
    tv.numbers["memory/function-osd/number_pad_show"] = 0;
    Show();
    Type({"1", "2", "XF86More"});
    EXPECT_THAT(tv.Did("launch"), ElementsAre("launch org.tizen.function-osd cmd=show tts=skip type=number_zip"));
    tv.numbers["memory/function-osd/number_pad_show"] = 1;
    Evas_Object* field = Field();
    EXPECT_TRUE(entry->Hide());
    EXPECT_EQ(tv.Did("launch").back(), "launch org.tizen.function-osd cmd=hide");
    EXPECT_FALSE(evas_object_visible_get(field));
    EXPECT_FALSE(evas_object_visible_get(entry->t_popup));

    answers.clear();
    entry->Show(); // hiding it has deleted the digits
    Type({"5", "6", "7", "8"});
    EXPECT_THAT(answers, ElementsAre("key", "key", "key", "pin 5678", "key"));
}

// Where the screen keeps its digits is private; an explicit instantiation may name it.
const char* DigitsOf(const VESKAR_APP::PinEntry& entry);
template <auto digits>
struct Open
{
    friend const char* DigitsOf(const VESKAR_APP::PinEntry& entry) { return (entry.*digits).data(); }
};
template struct Open<&VESKAR_APP::PinEntry::m_digits>;

TEST_F(PinEntryTest, NoDigitIsLeftInTheMemoryOfAHiddenScreen)
{
    Show();
    Type({"1", "2", "3", "BackSpace"});
    const char* digits = DigitsOf(*entry); // the memory is kept for the next digits
    EXPECT_EQ(std::string(digits, 3), std::string("12\0", 3));
    entry->Hide();
    EXPECT_EQ(std::string(digits, 3), std::string(3, '\0'));
}

TEST_F(PinEntryTest, WithoutItsFieldTheScreenIsStillShown)
{
    tv.failing = {"ea_pin_add"};
    Show();
    EXPECT_TRUE(entry->Hide());
}

struct ProgressPopupTest : ScreenTest
{
    Probe<VESKAR_APP::ProgressPopup> popup{*this, "T", "S", "Cancel", 7, window};
    Evas_Object* Bar() { return Widgets(popup.t_popup, "elm_progressbar").front(); }
};

TEST_F(ProgressPopupTest, ShowsAPercentageThatIsUpdatedInPlace)
{
    EXPECT_FALSE(popup.Update("T2", "S2", "Stop", 40));
    popup.Create();
    popup.Show();
    EXPECT_EQ(TextOf(popup.t_popup, "title,text"), "T");
    EXPECT_DOUBLE_EQ(elm_progressbar_value_get(Bar()), 0.07);
    EXPECT_STREQ(elm_progressbar_unit_format_get(Bar()), "%1.0f %%");
    EXPECT_EQ(elm_progressbar_span_size_get(Bar()), 100);
    EXPECT_TRUE(elm_win_borderless_get(window));

    EXPECT_TRUE(popup.Update("<T2>", "a&b", "", 40));
    EXPECT_EQ(TextOf(popup.t_popup, "title,text"), "&lt;T2&gt;");
    EXPECT_THAT(TextOf(popup.t_subtitleLabel), testing::HasSubstr(">a&amp;b<"));
    EXPECT_DOUBLE_EQ(elm_progressbar_value_get(Bar()), 0.4);
    EXPECT_FALSE(evas_object_visible_get(popup.t_buttons[0]));
    popup.Update("T", "S", "Stop", 41);
    EXPECT_TRUE(evas_object_visible_get(popup.t_buttons[0]));
    EXPECT_EQ(TextOf(popup.t_buttons[0]), "Stop");
    EXPECT_EQ(LabelTexts(popup.t_popup).size(), 1U); // no bottom line
    Press(popup.t_popup, "XF86Back");
    EXPECT_THAT(answers, IsEmpty());
}

using LoadingPopupTest = ScreenTest;

TEST_F(LoadingPopupTest, PulsesWhileItIsShownAndHearsNoKey)
{
    Probe<VESKAR_APP::LoadingPopup> popup(*this, "a < b", Texts{"Stop"}, 3, window);
    popup.Create();
    Evas_Object* bar = Widgets(popup.t_popup, "elm_progressbar").front();
    EXPECT_TRUE(elm_progressbar_is_pulsing_get(bar));
    EXPECT_STREQ(elm_object_style_get(bar), "C_Loading_WhiteLarge");
    EXPECT_EQ(TextOf(popup.t_popup, "title,text"), "a &lt; b");
    EXPECT_THAT(tv.Did("say"), ElementsAre("say a &lt; b, , , , "));
    for (int round = 0; round < 2; ++round)
    {
        EXPECT_TRUE(popup.Show());
        EXPECT_TRUE(elm_progressbar_is_pulsing_get(bar) && elm_progressbar_pulse_get(bar));
        Press(popup.t_popup, "XF86Back");
        EXPECT_TRUE(popup.Hide());
        EXPECT_FALSE(elm_progressbar_is_pulsing_get(bar) || elm_progressbar_pulse_get(bar));
    }
    EXPECT_THAT(answers, IsEmpty());
    Click(popup.t_buttons[0]);
    EXPECT_THAT(answers, ElementsAre("button 1"));
}

using ImagePopupTest = ScreenTest;

TEST_F(ImagePopupTest, TheRequestSizesTheImageAlsoWhenItDoesNotLoad)
{
    for (const auto& [asked, pixels] : {std::pair(0, 0), std::pair(401, 201), std::pair(9999, 5000)})
    {
        tv.Forget();
        Probe<VESKAR_APP::ImagePopup> popup(*this, "T", "S", "/no/such.png", asked, asked + 2, "B", Texts{}, false,
                                            window);
        popup.Create();
        popup.Show();
        int width = 0;
        int height = 0;
        evas_object_size_hint_min_get(Widgets(popup.t_popup, "elm_image").front(), &width, &height);
        EXPECT_EQ(width, pixels);
        EXPECT_EQ(height, pixels + 1);
        EXPECT_THAT(tv.Did("say"), ElementsAre("say T, S, , B, "));
        Press(popup.t_popup, "XF86Back");
    }
    EXPECT_EQ(answers, Texts(3, "back"));
}

TEST_F(ImagePopupTest, WithNoCloseOnlyTheButtonsAnswer)
{
    Probe<VESKAR_APP::ImagePopup> popup(*this, "T", "S", "", 1, 1, "B", Texts{"1", "2"}, true, window);
    popup.Create();
    popup.Show();
    Press(popup.t_popup, "XF86Exit");
    Click(popup.t_buttons[1]);
    EXPECT_THAT(answers, ElementsAre("button 2"));
}

} // namespace
