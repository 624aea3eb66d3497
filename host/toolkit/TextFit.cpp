#include "TextFit.h"

#include "TextProbe.h"
#include "Widgets.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <sstream>
#include <vector>

namespace veskar
{
namespace
{

constexpr const char* PARTS = "fit";
constexpr const char* LEAST_SIZE = "fit_least_size";
constexpr const char* ARRANGED = "veskar,arranged"; // on the measured part: what it was arranged for

constexpr int MOST_LINES = 12; // more are a text that rolls, and not seen together
constexpr int NEAR = 4;        // pixels by which a width may be larger than the narrowest one

/** Where the lines of a text stand; a text whose lines differ in that stays as it is. */
enum class Side
{
    Left,
    Right,
    Middle,
    Mixed
};

struct Line
{
    int x;
    int width;
};

std::vector<Line> LinesOf(const Evas_Object* text)
{
    std::vector<Line> lines;
    Line line{};
    while (evas_object_textblock_line_number_geometry_get(text, static_cast<int>(lines.size()), &line.x, nullptr,
                                                          &line.width, nullptr))
    {
        lines.push_back(line);
    }
    return lines;
}

Side SideOf(const std::vector<Line>& lines, int width)
{
    const auto all = [&lines](const auto& stands)
    {
        return std::all_of(lines.begin(), lines.end(), stands);
    };
    if (all([](const Line& line) { return line.x <= 1; }))
    {
        return Side::Left;
    }
    if (all([width](const Line& line) { return line.x + line.width >= width - 1; }))
    {
        return Side::Right;
    }
    const auto isCentred = [width](const Line& line)
    {
        return std::abs(2 * line.x + line.width - width) <= 2;
    };
    return all(isCentred) ? Side::Middle : Side::Mixed;
}

/** The least width at which the text has as many lines as at `width`. No word is broken that is not broken there. */
int Narrowest(TextProbe& probe, int width, const std::string& size)
{
    if (!probe.WordsFit(width))
    {
        // The halves of a broken word are to be of one length too.
        probe.Format(size + "wrap=mixed");
    }
    const int lines = probe.LinesAt(width);
    if (lines < 2 || lines > MOST_LINES)
    {
        return width;
    }
    int tooNarrow = width / 2;
    while (width - tooNarrow > NEAR)
    {
        const int middle = (tooNarrow + width) / 2;
        const bool fits = probe.LinesAt(middle) <= lines && probe.WordsFit(middle);
        (fits ? width : tooNarrow) = middle;
    }
    return width;
}

/** The largest letters that break no word, or the theme's own where it cannot be helped. */
int LargestSize(TextProbe& probe, int least, int width)
{
    const int given = probe.FontSize();
    for (int size = given; size >= least; --size)
    {
        probe.Format("font_size=" + std::to_string(size));
        if (probe.WordsFit(width))
        {
            return size;
        }
    }
    return given;
}

std::string SizeFor(TextProbe& probe, const char* least, int width)
{
    if (least == nullptr || probe.WordsFit(width))
    {
        return {};
    }
    std::string format = "font_size=" + std::to_string(LargestSize(probe, std::atoi(least), width)) + " ";
    probe.Format(format);
    return format;
}

std::string MarginsFor(TextProbe& probe, Side side, int width, const std::string& size)
{
    const int spare = side == Side::Mixed ? 0 : width - Narrowest(probe, width, size);
    const int left = side == Side::Left ? 0 : side == Side::Middle ? spare / 2 : spare;
    const int right = side == Side::Right ? 0 : side == Side::Middle ? spare / 2 : spare;
    return "left_margin=" + std::to_string(left) + " right_margin=" + std::to_string(right);
}

/** The parts of a layout that the theme wants to be arranged. */
std::vector<std::string> PartsOf(const Evas_Object* layout)
{
    const char* parts = edje_object_data_get(layout, PARTS);
    std::istringstream words(parts != nullptr ? parts : "");
    return {std::istream_iterator<std::string>(words), {}};
}

/** All that decides on the lines; equal values need no second arrangement. */
void* Fingerprint(Evas_Object* text, int width)
{
    const char* style = evas_textblock_style_get(evas_object_textblock_style_get(text));
    const char* markup = evas_object_textblock_text_markup_get(text);
    const std::string all = std::to_string(width) + (style != nullptr ? style : "") + (markup != nullptr ? markup : "");
    return reinterpret_cast<void*>(std::hash<std::string>()(all) | 1); // NOLINT(performance-no-int-to-ptr): never read
}

int WidthOf(const Evas_Object* object)
{
    int width = 0;
    evas_object_geometry_get(object, nullptr, nullptr, &width, nullptr);
    return width;
}

void Push(Evas_Object* layout, const std::vector<std::string>& parts, const std::string& format)
{
    const std::string style = "DEFAULT='" + format + "'";
    for (const std::string& part : parts)
    {
        edje_object_part_text_style_user_push(layout, part.c_str(), style.c_str());
    }
}

void Pop(Evas_Object* layout, const std::vector<std::string>& parts)
{
    for (const std::string& part : parts)
    {
        edje_object_part_text_style_user_pop(layout, part.c_str());
    }
}

/** The textblock that is measured; null where the theme has no such part. */
Evas_Object* MeasuredText(const Evas_Object* layout, const std::vector<std::string>& parts)
{
    return parts.empty() ? nullptr
                         : const_cast<Evas_Object*>(edje_object_part_object_get(layout, parts.back().c_str()));
}

void Undo(Evas_Object* layout, const std::vector<std::string>& parts)
{
    Evas_Object* text = MeasuredText(layout, parts);
    if (text != nullptr && evas_object_data_del(text, ARRANGED) != nullptr)
    {
        Pop(layout, parts);
    }
}

void ArrangeText(Evas_Object* layout, const std::vector<std::string>& parts)
{
    Evas_Object* text = MeasuredText(layout, parts);
    const int width = text != nullptr ? WidthOf(text) : 0;
    void* now = width > 0 ? Fingerprint(text, width) : nullptr;
    if (now == nullptr || evas_object_data_get(text, ARRANGED) == now)
    {
        return;
    }
    Undo(layout, parts);
    evas_object_data_set(text, ARRANGED, now);
    TextProbe probe(text);
    const std::string size = SizeFor(probe, edje_object_data_get(layout, LEAST_SIZE), width);
    Push(layout, parts, size + MarginsFor(probe, SideOf(LinesOf(text), width), width, size));
    elm_layout_sizing_eval(evas_object_smart_parent_get(layout));
}

/** Rows are as high as they are, and far more than all other texts. */
void ArrangeInside(Evas_Object* object)
{
    if (Is(object, "elm_genlist") || !MayHaveMembers(object))
    {
        return;
    }
    if (Is(object, "edje"))
    {
        ArrangeText(object, PartsOf(object));
    }
    Eina_List* members = evas_object_smart_members_get(object);
    void* member = nullptr;
    EINA_LIST_FREE(members, member)
    {
        ArrangeInside(static_cast<Evas_Object*>(member));
    }
}

} // namespace

void UndoTextFit(Evas_Object* layout)
{
    Undo(layout, PartsOf(layout));
}

TextFit::TextFit(Evas_Object* popup) : m_popup(popup), m_beforeDrawing(CallTask<&TextFit::m_Arrange>, this) {}

void TextFit::m_Arrange()
{
    if (!evas_object_visible_get(m_popup))
    {
        return;
    }
    evas_smart_objects_calculate(evas_object_evas_get(m_popup));
    ArrangeInside(m_popup);
}

} // namespace veskar
