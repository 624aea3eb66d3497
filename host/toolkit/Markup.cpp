/**
 * Texts that this toolkit cannot lay out are changed before it gets them; they look as they did. The program is linked
 * so that each call of elm_entry_utf8_to_markup arrives here.
 *
 * It breaks a line where one library allows that, and cuts the text there as another one has joined its characters.
 * Where both differ it cuts nothing off, and begins the same line again for ever: a space and a mark that stands on it
 * are the usual case. The library for the direction of texts reads memory that is not its own when directions are
 * nested more deeply than it has room for.
 */
#include "CString.h"

#include <Elementary.h>
#include <algorithm>
#include <hb.h>
#include <string>
#include <string_view>
#include <vector>

namespace veskar
{
namespace
{

constexpr char32_t NO_BREAK_SPACE = 0xA0;
constexpr char32_t SOFT_HYPHEN = 0xAD;
constexpr char32_t ZERO_WIDTH_SPACE = 0x200B;
constexpr char32_t ZERO_WIDTH_JOINER = 0x200D;
constexpr char32_t END_OF_EMBEDDING = 0x202C;
constexpr char32_t WORD_JOINER = 0x2060;
constexpr char32_t END_OF_ISOLATE = 0x2069;

/** Each takes two levels at most, of 125. */
constexpr std::size_t DEEPEST = 60;

bool IsBetween(char32_t character, char32_t first, char32_t last)
{
    return first <= character && character <= last;
}

bool IsPlain(char character)
{
    return static_cast<unsigned char>(character) < 0x80;
}

/** It shows nothing, and some end a line without being told to. */
bool IsControl(char32_t character)
{
    return (character < ' ' && character != '\n' && character != '\t') || IsBetween(character, 0x7F, 0x9F);
}

bool IsMark(char32_t character)
{
    const auto category = hb_unicode_general_category(hb_unicode_funcs_get_default(), character);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK;
}

bool IsSkinTone(char32_t character)
{
    return IsBetween(character, 0x1F3FB, 0x1F3FF);
}

/** With the character before it, whatever that is. */
bool Joins(char32_t character)
{
    constexpr char32_t FIRST_TAG = 0xE0020;
    constexpr char32_t LAST_TAG = 0xE007F;
    return IsMark(character) || IsSkinTone(character) || character == ZERO_WIDTH_JOINER ||
           IsBetween(character, FIRST_TAG, LAST_TAG);
}

bool AllowsBreak(char32_t character)
{
    constexpr std::u32string_view BLANKS = U" \t\u1680\u2028\u2029\u202F\u205F\u3000";
    return BLANKS.find(character) != std::u32string_view::npos || character == SOFT_HYPHEN ||
           IsBetween(character, 0x2000, ZERO_WIDTH_SPACE);
}

/** The directions that are open at one place of a text. */
class Nesting
{
public:
    /** False for a character that opens one too many. */
    bool Take(char32_t character)
    {
        const bool opensIsolate = IsBetween(character, 0x2066, 0x2068);
        const bool opensEmbedding = IsBetween(character, 0x202A, 0x202E) && character != END_OF_EMBEDDING;
        if (opensIsolate || opensEmbedding)
        {
            const bool fits = m_isolates.size() < DEEPEST;
            if (fits)
            {
                m_isolates.push_back(opensIsolate);
            }
            return fits;
        }
        if (character == END_OF_EMBEDDING && !m_isolates.empty() && !m_isolates.back())
        {
            m_isolates.pop_back();
        }
        if (character == END_OF_ISOLATE)
        {
            m_EndIsolate();
        }
        return true;
    }

private:
    /** Ends what was opened inside it too. */
    void m_EndIsolate()
    {
        const auto last = std::find(m_isolates.rbegin(), m_isolates.rend(), true);
        if (last != m_isolates.rend())
        {
            m_isolates.erase(last.base() - 1, m_isolates.end());
        }
    }

    std::vector<bool> m_isolates;
};

/** A person's skin may have a tone, a face of the smileys has none. */
bool TakesSkinTone(char32_t character)
{
    const bool isFace = IsBetween(character, 0x1F600, 0x1F644);
    const bool isEmoji = IsBetween(character, 0x2600, 0x27BF) || character >= 0x1F300;
    return isEmoji && !isFace && !IsSkinTone(character);
}

/** Counts the characters that join one before them. No language puts so many on a letter, and each costs the toolkit.
 */
class MarkRun
{
public:
    /** False for one too many. */
    bool Take(char32_t character)
    {
        constexpr int MOST = 30;
        m_length = Joins(character) ? m_length + 1 : 0;
        return m_length <= MOST;
    }

private:
    int m_length = 0;
};

void Append(std::u32string& text, char32_t character)
{
    const char32_t before = text.empty() ? U'\n' : text.back();
    const bool allowsBreakOnly = character == SOFT_HYPHEN || character == ZERO_WIDTH_SPACE;
    if (allowsBreakOnly && Joins(before))
    {
        return;
    }
    if (Joins(character) && AllowsBreak(before))
    {
        text.back() = NO_BREAK_SPACE;
    }
    if (IsSkinTone(character) && !TakesSkinTone(before))
    {
        text += WORD_JOINER;
    }
    text += character;
}

std::string LaidOutWell(const char* text)
{
    Nesting nesting;
    MarkRun marks;
    std::u32string result;
    int at = 0;
    for (char32_t character = 0; (character = eina_unicode_utf8_next_get(text, &at)) != 0;)
    {
        if (!IsControl(character) && marks.Take(character) && nesting.Take(character))
        {
            Append(result, character);
        }
    }
    int length = 0;
    std::vector<Eina_Unicode> units(result.begin(), result.end());
    units.push_back(0); // the toolkit reads one behind the range
    const CString bytes(eina_unicode_unicode_to_utf8_range(units.data(), static_cast<int>(units.size()) - 1, &length));
    return {bytes.get(), static_cast<std::size_t>(length)};
}

} // namespace

} // namespace veskar

extern "C"
{
    char* __real_elm_entry_utf8_to_markup(const char* text);

    char* __wrap_elm_entry_utf8_to_markup(const char* text)
    {
        const std::string_view given = text != nullptr ? text : "";
        if (std::all_of(given.begin(), given.end(), veskar::IsPlain))
        {
            return __real_elm_entry_utf8_to_markup(text);
        }
        return __real_elm_entry_utf8_to_markup(veskar::LaidOutWell(text).c_str());
    }
}
