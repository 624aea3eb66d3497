#include "SecretMask.h"

#include <algorithm>
#include <string_view>

namespace veskar
{
namespace
{

/** A text that carries digits: what stands before them and what after, so that other numbers are left alone. */
struct DigitText
{
    std::string_view before;
    std::string_view after;
};

constexpr DigitText DIGIT_TEXTS[] = {
    {"Number [", "] pressed!"},
    {"PIN entered is ", ""},
    {"Key input ", " not handled."},
    // The digit keys of a keyboard's keypad.
    {"Key input KP_", " not handled."},
};

constexpr std::string_view DIGITS = "0123456789";

void MaskText(std::string& line, const DigitText& text)
{
    for (auto at = line.find(text.before); at != std::string::npos; at = line.find(text.before, at))
    {
        at += text.before.size();
        const auto end = std::min(line.find_first_not_of(DIGITS, at), line.size());
        if (line.compare(end, text.after.size(), text.after) == 0)
        {
            line.replace(at, end - at, end - at, '*');
        }
    }
}

} // namespace

void MaskTypedDigits(std::string& line)
{
    for (const auto& text : DIGIT_TEXTS)
    {
        MaskText(line, text);
    }
}

} // namespace veskar
