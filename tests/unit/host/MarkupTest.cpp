/** Texts that the toolkit cannot lay out, as they reach it. */
#include <CString.h>
#include <Elementary.h>

#include <string>

#include <gtest/gtest.h>

namespace
{

/** The characters that the toolkit lays out for a text; it gets them as markup. */
std::string LaidOut(const std::string& text)
{
    const veskar::CString markup(elm_entry_utf8_to_markup(text.c_str()));
    const veskar::CString characters(elm_entry_markup_to_utf8(markup.get()));
    return characters.get();
}

std::string Times(std::size_t count, const std::string& text)
{
    std::string all;
    for (; count > 0; --count)
    {
        all += text;
    }
    return all;
}

} // namespace

TEST(Markup, LeavesTheCharactersOfATextThatCanBeLaidOut)
{
    EXPECT_EQ(LaidOut("A & <b>\n"), "A & <b>\n");
    EXPECT_EQ(LaidOut("é שלום 👍🏽 ไทย"), "é שלום 👍🏽 ไทย");
}

TEST(Markup, PutsNoMarkOnABlankAtWhichALineMayEnd)
{
    EXPECT_EQ(LaidOut("a \u0301b"), "a\u00A0\u0301b");
    EXPECT_EQ(LaidOut("a\u3000\u200Db"), "a\u00A0\u200Db");
    EXPECT_EQ(LaidOut("\u0663 \u20DD \u2003\u1680"), "\u0663\u00A0\u20DD \u2003\u1680");
    EXPECT_EQ(LaidOut("e\u0301 b"), "e\u0301 b") << "a mark on a letter, before a blank";
}

TEST(Markup, OffersNoBreakBehindAMark)
{
    EXPECT_EQ(LaidOut("e\u0301\u00ADb"), "e\u0301b");
    EXPECT_EQ(LaidOut("e\u00ADb"), "e\u00ADb");
}

TEST(Markup, KeepsASkinToneApartFromWhatTakesNone)
{
    EXPECT_EQ(LaidOut("\U0001F600\U0001F3FD"), "\U0001F600\u2060\U0001F3FD");
    EXPECT_EQ(LaidOut("x\U0001F3FD"), "x\u2060\U0001F3FD");
    EXPECT_EQ(LaidOut("\U0001F44D\U0001F3FD"), "\U0001F44D\U0001F3FD");
}

TEST(Markup, PutsNoMoreMarksOnALetterThanAnyLanguageNeeds)
{
    const std::string most = "e" + Times(30, "\u0301");
    EXPECT_EQ(LaidOut(most + "e\u0301"), most + "e\u0301");
    EXPECT_EQ(LaidOut(most + Times(100000, "\u0301") + "x"), most + "x");
}

TEST(Markup, DropsControlCharacters)
{
    EXPECT_EQ(LaidOut("é\u0085\u0001b"), "éb");
}

TEST(Markup, NestsDirectionsOnlyAsDeeplyAsTheyCanBeLaidOut)
{
    constexpr const char* EMBEDDING = "\u202B";
    constexpr const char* END_OF_EMBEDDING = "\u202C";
    EXPECT_EQ(LaidOut(Times(100, EMBEDDING) + "x"), Times(60, EMBEDDING) + "x");
    const std::string closed = Times(100, std::string(EMBEDDING) + "x" + END_OF_EMBEDDING);
    EXPECT_EQ(LaidOut(closed), closed) << "one beside the other";

    constexpr const char* ISOLATE = "\u2067";
    constexpr const char* END_OF_ISOLATE = "\u2069";
    const std::string isolated = ISOLATE + Times(59, EMBEDDING) + "x" + END_OF_ISOLATE;
    EXPECT_EQ(LaidOut(isolated + isolated), isolated + isolated) << "an isolate's end ends what was opened in it";
}
