// Where the lines of titles, messages and buttons are broken.

#include "CString.h"
#include "Shown.h"

#include "toolkit/Words.h"

#include <algorithm>

namespace
{

using testing::SizeIs;

using Widths = std::vector<int>;

struct TextFitTest : ShownTest
{
    void Show(const std::string& title, const std::string& text, const std::string& button)
    {
        ASSERT_TRUE(manager->ShowMessage(1, 255, title, "", "", text, {button}, false));
        TakeKeyboard();
        Watch();
    }
    /** The widths of the lines that a theme's part shows. */
    Widths Lines(const char* part, const std::string& inside)
    {
        return LinesOf(edje_object_part_object_get(Layout(part, inside), part));
    }
    static Widths LinesOf(const Evas_Object* text)
    {
        Widths widths;
        int width = 0;
        while (text != nullptr && evas_object_textblock_line_number_geometry_get(text, static_cast<int>(widths.size()),
                                                                                 nullptr, nullptr, &width, nullptr))
        {
            widths.push_back(width);
        }
        return widths;
    }
    Evas_Object* Layout(const char* part, const std::string& inside)
    {
        const auto layouts = WidgetsOnScreen(tv.window, "edje");
        const auto found =
            std::find_if(layouts.begin(), layouts.end(),
                         [&](Evas_Object* layout)
                         {
                             const char* text = edje_object_part_text_get(layout, part);
                             return text != nullptr && std::string(text).find(inside) != std::string::npos;
                         });
        return found != layouts.end() ? *found : nullptr;
    }
};

void ExpectBalanced(const Widths& lines, std::size_t count)
{
    ASSERT_THAT(lines, SizeIs(count));
    const auto [shortest, longest] = std::minmax_element(lines.begin(), lines.end());
    EXPECT_GE(3 * *shortest, 2 * *longest) << testing::PrintToString(lines);
}

TEST_F(TextFitTest, NoSingleWordStandsOnTheLastLine)
{
    Show("The subscription to the Sport package of Northern Lights TV has expired today",
         "Your subscription to the Sport package expired on the day before yesterday. Please renew it soon.",
         "Remind me of the end tomorrow");
    ExpectBalanced(Lines("title", "subscription"), 2);
    ExpectBalanced(Lines("text", "Your"), 3);
    ExpectBalanced(Lines("text", "Remind"), 2);
    Show("Berechtigungsverlängerungsbestätigungsschreiben", "", ""); // longer than the line, by a syllable
    ExpectBalanced(Lines("title", "Berechtigung"), 2);

    Show("T", "One line", "OK");
    EXPECT_THAT(Lines("text", "One line"), SizeIs(1));
}

bool ShowsTerms(Evas_Object* block)
{
    return std::string(evas_object_textblock_text_markup_get(block)).find("Terms") != std::string::npos;
}

TEST_F(TextFitTest, NoPageEndsWithASingleWord)
{
    std::istringstream words(
        "To keep the Sport package you have to pay for it by the end of May, and each month after");
    std::string text = "Terms:";
    for (int i = 0; i < 25; ++i)
    {
        text += " pay for the card";
    }
    for (std::string word; words >> word;)
    {
        text += " " + word; // more and more of the last line
        Show("T", text, "OK");
        const auto blocks = WidgetsOnScreen(tv.window, "textblock");
        const auto page = std::find_if(blocks.begin(), blocks.end(), ShowsTerms);
        ASSERT_NE(page, blocks.end());
        const Widths lines = LinesOf(*page);
        EXPECT_GE(3 * lines.back(), *std::max_element(lines.begin(), lines.end())) << word;
    }
}

TEST_F(TextFitTest, LettersOfAButtonShrinkBeforeAWordIsBroken)
{
    Show("T", "Text", "Berechtigungsverlängerung");
    EXPECT_THAT(Lines("text", "Berechtigung"), SizeIs(1));

    // What is too long at the least size keeps its own.
    Show("T", "Text", std::string(60, 'm'));
    const Widths broken = Lines("text", "mmm");
    ASSERT_THAT(broken, SizeIs(testing::Gt(1U)));
    Show("T", "Text", std::string(10, 'm'));
    EXPECT_GT(broken.front(), Lines("text", "mmm").front());
}

TEST_F(TextFitTest, KoreanWordsStayOnOneLine)
{
    using veskar::WithWordsTogether;
    EXPECT_EQ(WithWordsTogether("가나 <b>다</b>"), "가\u2060나 <b>다</b>");
    EXPECT_EQ(WithWordsTogether("14일 TV를 <b가나>"), "14\u2060일 TV\u2060를 <b가나>");
    EXPECT_EQ(WithWordsTogether("日本語 ไทย é"), "日本語 ไทย é");

    Show("T", "스포츠 패키지 구독이 만료되었습니다. 갱신하려면 카드 번호를 준비하고 고객 센터로 전화하십시오.", "OK");
    const Evas_Object* text = edje_object_part_object_get(Layout("text", "전\u2060화"), "text");
    Evas_Textblock_Cursor* cursor = evas_object_textblock_cursor_new(text);
    evas_textblock_cursor_line_set(cursor, 0);
    evas_textblock_cursor_line_char_last(cursor);
    const veskar::CString end(evas_textblock_cursor_content_get(cursor));
    EXPECT_STREQ(end.get(), " ");
    evas_textblock_cursor_free(cursor);
}

TEST_F(TextFitTest, NumbersStayOnOneLine)
{
    using veskar::WithWordsTogether;
    EXPECT_EQ(WithWordsTogether("Call 0800 / 123 456 now"), "Call 0800\u00A0/\u00A0123\u00A0456 now");
    EXPECT_EQ(WithWordsTogether("14 March 2026. 5 days, 1 - x"), "14 March 2026. 5 days, 1 - x");
    EXPECT_EQ(WithWordsTogether("<align 0 0>1–2<b>3 4"), "<align 0 0>1–\u20602<b>3\u00A04");
    EXPECT_EQ(WithWordsTogether("1 2 <open 3 4"), "1\u00A02 <open 3 4");
    const std::string endless = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15";
    EXPECT_EQ(WithWordsTogether(endless), endless);

    Show("T", "0800 123 456", "OK");
    EXPECT_THAT(Lines("text", "0800\u00A0123\u00A0456"), SizeIs(1));
}

} // namespace
