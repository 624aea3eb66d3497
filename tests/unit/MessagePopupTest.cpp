#include "MessagePopup.h"
#include "Screen.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

struct MessagePopupTest : ScreenTest
{
    std::unique_ptr<Probe<VESKAR_APP::MessagePopup>> popup;

    void Show(const std::string& text, bool noClose = false)
    {
        popup.reset();
        tv.Forget();
        answers.clear();
        popup = std::make_unique<Probe<VESKAR_APP::MessagePopup>>(*this, "Title", "Sub", text, "Bottom", Texts{"OK"},
                                                                  noClose, window);
        ASSERT_TRUE(popup->Create());
        ASSERT_TRUE(popup->Show());
    }
    /** The text of the message's own label; empty when the message is a text page. */
    std::string Label()
    {
        const Texts labels = LabelTexts(popup->t_popup);
        return labels.size() == 3 ? labels[1] : "";
    }
    Evas_Object* Page()
    {
        const std::vector<Evas_Object*> pages = Widgets(popup->t_popup, "elm_scroller");
        return pages.empty() ? nullptr : pages.front();
    }
};

TEST_F(MessagePopupTest, BytesDecideTheStyleBelow300AndThePageAbove)
{
    std::string letters;
    for (int i = 0; i < 150; ++i)
    {
        letters += "\u0436"; // two bytes
    }
    const std::tuple<std::string, const char*, bool> messages[] = {
        {std::string(299, 'x'), "C_PopupBasic_WhiteBottom", false},
        {std::string(300, 'x'), "C_PopupBasic_WhiteBottomLarge", false},
        {std::string(301, 'x'), "C_PopupBasic_WhiteBottomLarge", true},
        {letters, "C_PopupBasic_WhiteBottomLarge", false},
        {letters + "x", "C_PopupBasic_WhiteBottomLarge", true},
    };
    for (const auto& [text, style, isPage] : messages)
    {
        Show(text);
        EXPECT_STREQ(elm_object_style_get(popup->t_popup), style);
        EXPECT_EQ(Page() != nullptr, isPage);
        EXPECT_EQ(Label().empty(), isPage);
        EXPECT_THAT(tv.Did("say"), ElementsAre("say Title, Sub, " + text + ", Bottom, "));
    }
}

TEST_F(MessagePopupTest, AShortTextIsCentredAndLinesStandAtTheirSide)
{
    Show("a < b");
    EXPECT_EQ(Label(), "<align=center>a &lt; b</align>");
    for (const auto& [orientation, side] : {std::pair(2, "left"), std::pair(1, "right")})
    {
        tv.orientation = orientation;
        Show("1\n2");
        EXPECT_EQ(Label(), std::string("<align=") + side + ">1<br/>2</align>");
    }
}

TEST_F(MessagePopupTest, ATextPageFollowsTheAccessibilitySettings)
{
    const std::string text = std::string(300, 'x') + '&';
    const auto style = [](const std::string& size, const std::string& colour)
    {
        return "DEFAULT='font=BrelmonFace_300 font_size=" + size + " linesize=" + size +
               " linegap=0 align=mixed wrap=word color=" + colour + "'";
    };
    Show(text);
    EXPECT_EQ(tv.pageStyle, style("17", "#FFFFFF"));
    EXPECT_EQ(tv.pageText, std::string(300, 'x') + "&amp;");
    EXPECT_THAT(tv.Did("page"), ElementsAre("page 0"));
    EXPECT_STREQ(elm_object_style_get(Page()), "C_Scrollbar_White");
    EXPECT_FALSE(elm_object_focus_allow_get(Page()));

    tv.numbers = {{"db/menu/system/accessibility/focuszoom", 1}, {"db/menu/system/accessibility/highcontrast", 1}};
    elm_config_scale_set(2.0);
    Show(text);
    EXPECT_EQ(tv.pageStyle, style("39", "#7F7F7F"));
}

TEST_F(MessagePopupTest, UpAndDownTurnThePagesAndNothingElse)
{
    Show(std::string(301, 'x'));
    for (const char* key : {"Up", "Down", "Down", "Down", "Up", "Return", "XF86Back"})
    {
        Press(popup->t_popup, key);
    }
    EXPECT_THAT(tv.Did("page"), ElementsAre("page 0", "page 1", "page 2", "page 1"));
    EXPECT_THAT(answers, ElementsAre("key", "back"));

    Show("short"); // a label has no pages, but gets the two keys too
    Press(popup->t_popup, "Up");
    Press(popup->t_popup, "Down");
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(MessagePopupTest, WithNoCloseKeysAreIgnoredAndButtonsAnswer)
{
    Show(std::string(301, 'x'), true);
    for (const char* key : {"XF86Back", "XF86Exit", "Return", "Down"})
    {
        Press(popup->t_popup, key);
    }
    EXPECT_THAT(tv.Did("page"), ElementsAre("page 0", "page 1"));
    Click(popup->t_buttons[0]);
    EXPECT_THAT(answers, ElementsAre("button 1"));
}

TEST_F(MessagePopupTest, WithoutItsPageTheFrameStaysAndKeysAreRefused)
{
    tv.failing = {"ea_textpage_add"};
    Show(std::string(301, 'x'));
    Press(popup->t_popup, "XF86Back");
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_TRUE(evas_object_visible_get(popup->t_buttons[0]));
}

} // namespace
