/** The digits of a PIN leave no trace in memory. */
#include "assist/Digits.h"

#include <string>

#include <gtest/gtest.h>

TEST(Digits, AreOverwrittenWhenTheyAreRemoved)
{
    veskar::Digits digits(4);
    for (const char digit : {'1', '2', '3', '4', '5'})
    {
        digits.Append(digit);
    }
    const char* memory = digits.View().data();
    EXPECT_EQ(digits.View(), "1234");
    digits.RemoveLast();
    EXPECT_EQ(std::string(memory, 4), std::string("123\0", 4));
    digits.Clear();
    EXPECT_EQ(std::string(memory, 4), std::string(4, '\0'));
}
