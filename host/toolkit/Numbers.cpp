#include "Numbers.h"

#include <algorithm>

namespace veskar
{
namespace
{

constexpr std::size_t LONGEST = 32; // bytes
constexpr std::string_view NO_BREAK_SPACE = "\u00A0";
constexpr std::string_view DIGITS = "0123456789";
constexpr std::string_view BETWEEN = "0123456789 -/–";

std::string WithoutBreaks(std::string_view number)
{
    std::string joined;
    for (const char character : number)
    {
        character == ' ' ? joined += NO_BREAK_SPACE : joined += character;
    }
    return joined;
}

/** The number that `text` begins with, up to its last digit. */
std::string_view NumberAt(std::string_view text)
{
    const std::string_view number = text.substr(0, text.find_first_not_of(BETWEEN));
    return number.substr(0, number.find_last_of(DIGITS) + 1);
}

} // namespace

std::string WithNumbersTogether(std::string_view markup)
{
    std::string joined;
    while (!markup.empty())
    {
        // What is in a tag is no text.
        const std::size_t plain = std::min(markup.find_first_of("<0123456789"), markup.size());
        joined += markup.substr(0, plain);
        markup.remove_prefix(plain);
        const bool isTag = !markup.empty() && markup.front() == '<';
        const std::size_t tagEnd = std::min(markup.find('>'), markup.size());
        const std::string_view next = isTag ? markup.substr(0, tagEnd) : NumberAt(markup);
        joined += isTag || next.size() > LONGEST ? std::string(next) : WithoutBreaks(next);
        markup.remove_prefix(next.size());
    }
    return joined;
}

} // namespace veskar
