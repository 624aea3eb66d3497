#include "Words.h"

#include <algorithm>

namespace veskar
{
namespace
{

constexpr std::size_t LONGEST = 32; // bytes
constexpr std::string_view NO_BREAK_SPACE = "\u00A0";
constexpr std::string_view WORD_JOINER = "\u2060";
constexpr std::string_view DASH = "–";
constexpr std::string_view DIGITS = "0123456789";
constexpr std::string_view BETWEEN = "0123456789 -/–";

std::string Replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    {
        text.replace(at, from.size(), to);
    }
    return text;
}

std::string WithoutBreaks(std::string_view number)
{
    return Replaced(Replaced(std::string(number), " ", NO_BREAK_SPACE), DASH, std::string(DASH).append(WORD_JOINER));
}

/** The number that `text` begins with, up to its last digit. */
std::string_view NumberAt(std::string_view text)
{
    const std::string_view number = text.substr(0, text.find_first_not_of(BETWEEN));
    return number.substr(0, number.find_last_of(DIGITS) + 1);
}

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

constexpr std::size_t SYLLABLE_BYTES = 3;

/** Korean is written in syllables, from U+AC00 to U+D7A3. */
bool BeginsWithSyllable(std::string_view text)
{
    return text.substr(0, SYLLABLE_BYTES) >= "\uAC00" && text.substr(0, SYLLABLE_BYTES) <= "\uD7A3";
}

bool IsLetterOrDigit(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
}

std::string WithSyllablesTogether(std::string_view markup)
{
    std::string joined;
    bool afterSyllable = false;
    bool afterLetter = false;
    while (!markup.empty())
    {
        const bool isSyllable = BeginsWithSyllable(markup);
        const bool isLetter = IsLetterOrDigit(markup.front());
        if ((isSyllable && (afterSyllable || afterLetter)) || (isLetter && afterSyllable))
        {
            joined += WORD_JOINER;
        }
        const bool isTag = markup.front() == '<';
        const std::size_t length = isTag        ? std::min(markup.find('>'), markup.size() - 1) + 1
                                   : isSyllable ? SYLLABLE_BYTES
                                                : 1;
        joined += markup.substr(0, length);
        markup.remove_prefix(length);
        afterSyllable = isSyllable;
        afterLetter = isLetter;
    }
    return joined;
}

} // namespace

std::string WithWordsTogether(std::string_view markup)
{
    constexpr std::string_view LEADS = "\xEA\xEB\xEC\xED"; // the first bytes of syllables
    std::string joined = WithNumbersTogether(markup);
    return joined.find_first_of(LEADS) == std::string::npos ? joined : WithSyllablesTogether(joined);
}

} // namespace veskar
