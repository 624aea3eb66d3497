/** What the voice guide says of a text, which may be markup or not. */
#include "assist/SpokenText.h"

#include <gtest/gtest.h>

using veskar::SpokenText;

TEST(SpokenText, SaysATextAsItStandsWhereNothingInItIsMarkup)
{
    for (const char* text : {"a < b", "A & B", "AT&T", "a & b; c", "R&D; x", "BBC <1>", "<unknown>x</unknown>", "a > b",
                             "<", "&", "<br", "<>", "<b and c>", "i<b && b>c", "<color>", "<title>", "é < ü"})
    {
        EXPECT_EQ(SpokenText(text), text);
    }
}

TEST(SpokenText, SaysTheCharacterOfAnEntityOnce)
{
    EXPECT_EQ(SpokenText("A &amp; B"), "A & B");
    EXPECT_EQ(SpokenText("&lt;br&gt; &amp;amp;"), "<br> &amp;");
    EXPECT_EQ(SpokenText("&eacute;&#65;&&quot;"), "éA&\"");
}

TEST(SpokenText, SaysNothingOfTags)
{
    EXPECT_EQ(SpokenText("<align=left>x</align>"), "x");
    EXPECT_EQ(SpokenText("<color=#FFFFFFFF><font=Sans:style=Regular font_size=32><b>x</b></font></color>"), "x");
    EXPECT_EQ(SpokenText("<font font_size=20>a</><a href=x>b</a>"), "ab");
}

TEST(SpokenText, MakesEachBreakASpace)
{
    EXPECT_EQ(SpokenText("a<br>b<br/>c<br />d<ps>e<tab>f\ng\th"), "a b c d e f g h");
}

TEST(SpokenText, FindsMarkupBesideTextThatLooksLikeIt)
{
    EXPECT_EQ(SpokenText("a < b<br>c & d &amp; e <f>"), "a < b c & d & e <f>");
    EXPECT_EQ(SpokenText("a <b<br>c &lt&amp;"), "a <b c &lt&");
}
