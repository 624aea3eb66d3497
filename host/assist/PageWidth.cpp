#include "PageWidth.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace veskar
{
namespace
{

constexpr int MOST_LINES = 40; // of more, each narrower layout would delay the first picture
constexpr int STEPS = 5;

struct FreeCursor
{
    void operator()(Evas_Textblock_Cursor* cursor) const { evas_textblock_cursor_free(cursor); }
};

/** Not more than MOST_LINES + 1. */
std::vector<Across> LinesOf(const Evas_Object* text)
{
    std::vector<Across> lines;
    Across line{};
    while (lines.size() <= MOST_LINES &&
           evas_object_textblock_line_number_geometry_get(text, static_cast<int>(lines.size()), &line.left, nullptr,
                                                          &line.width, nullptr))
    {
        lines.push_back(line);
    }
    return lines;
}

/** The first line of each paragraph, and the number of lines. */
std::vector<std::size_t> ParagraphsOf(const Evas_Object* text, std::size_t lines)
{
    const std::unique_ptr<Evas_Textblock_Cursor, FreeCursor> cursor(evas_object_textblock_cursor_new(text));
    std::vector<std::size_t> firsts;
    do
    {
        firsts.push_back(evas_textblock_cursor_line_geometry_get(cursor.get(), nullptr, nullptr, nullptr, nullptr));
    } while (evas_textblock_cursor_paragraph_next(cursor.get()));
    firsts.push_back(lines);
    return firsts;
}

bool EndsShort(const Evas_Object* text, const std::vector<Across>& lines)
{
    int longest = 0;
    for (const Across& line : lines)
    {
        longest = std::max(longest, line.width);
    }
    const std::vector<std::size_t> firsts = ParagraphsOf(text, lines.size());
    for (std::size_t i = 1; i < firsts.size(); ++i)
    {
        if (firsts[i] - firsts[i - 1] > 1 && 3 * lines[firsts[i] - 1].width < longest)
        {
            return true;
        }
    }
    return false;
}

void SetWidth(Evas_Object* text, int width)
{
    int height = 0;
    evas_object_geometry_get(text, nullptr, nullptr, nullptr, &height);
    evas_object_resize(text, width, height);
}

} // namespace

Across Balance(Evas_Object* text, int most)
{
    SetWidth(text, most);
    const std::vector<Across> whole = LinesOf(text);
    const int count = static_cast<int>(whole.size());
    const auto isLeft = [](const Across& line)
    {
        return line.left <= 1;
    };
    const auto isRight = [most](const Across& line)
    {
        return line.left + line.width >= most - 1;
    };
    const bool atLeft = std::all_of(whole.begin(), whole.end(), isLeft);
    const bool atRight = std::all_of(whole.begin(), whole.end(), isRight);
    if (count < 2 || count > MOST_LINES || (!atLeft && !atRight) || !EndsShort(text, whole))
    {
        return {0, most};
    }
    // All lines but the last can spare one line's width together, which is tried in steps.
    const int step = std::max(most / (count - 1) / STEPS, 1);
    for (int i = 1; i < STEPS; ++i)
    {
        const int width = most - i * step;
        SetWidth(text, width);
        const std::vector<Across> lines = LinesOf(text);
        if (lines.size() > whole.size())
        {
            break;
        }
        if (!EndsShort(text, lines))
        {
            return {atLeft ? 0 : most - width, width};
        }
    }
    SetWidth(text, most);
    return {0, most};
}

} // namespace veskar
