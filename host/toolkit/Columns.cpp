// How columns and their header stand, and a picture beside a list. The cells of a row keep their texts apart where two
// columns meet, most of all where one text ends and the next one begins. A header stands in a layout of the theme,
// which draws a rule below it and lets cells beyond the columns run over the end, as they do in the rows. A picture
// begins where the rows begin.

#include "SizeHints.h"
#include "ThemeSizes.h"
#include "Widgets.h"

#include <string_view>
#include <vector>

extern "C" void __real_elm_box_pack_end(Evas_Object* box, Evas_Object* child); // NOLINT(bugprone-reserved-identifier)

namespace
{

using veskar::Is;

std::vector<Evas_Object*> ChildrenOf(const Evas_Object* box)
{
    std::vector<Evas_Object*> children;
    void* child = nullptr;
    Eina_List* list = elm_box_children_get(box);
    EINA_LIST_FREE(list, child)
    {
        children.push_back(static_cast<Evas_Object*>(child));
    }
    return children;
}

bool IsRowOfCells(const Evas_Object* object)
{
    if (!Is(object, "elm_box") || !elm_box_horizontal_get(object))
    {
        return false;
    }
    const std::vector<Evas_Object*> cells = ChildrenOf(object);
    return !cells.empty() && Is(cells.front(), "elm_label");
}

void Signal(Evas_Object* label, const char* signal)
{
    elm_object_signal_emit(label, signal, "veskar");
    // A row is measured as soon as its last cell is there.
    edje_object_message_signal_process(elm_layout_edje_get(label));
}

bool IsAligned(const Evas_Object* cell, std::string_view side)
{
    constexpr std::string_view ALIGN = "<align=";
    const std::string_view markup = elm_object_text_get(cell);
    const std::size_t at = markup.find(ALIGN);
    return at != std::string_view::npos && markup.substr(at + ALIGN.size(), side.size()) == side;
}

/** Whether the texts of both would stand beside each other, with the rest of their columns empty. */
bool Meet(const Evas_Object* first, const Evas_Object* second)
{
    const bool mirrored = elm_object_mirrored_get(first);
    return IsAligned(mirrored ? second : first, "right") && IsAligned(mirrored ? first : second, "left");
}

void KeepFromNeighbour(Evas_Object* cell, const Evas_Object* row)
{
    const std::vector<Evas_Object*> cells = ChildrenOf(row);
    if (cells.size() < 2)
    {
        return;
    }
    Evas_Object* before = cells[cells.size() - 2];
    const bool isRoomy = elm_label_wrap_width_get(cell) >= veskar::ThemeSize(cell, "roomy_width");
    if (Meet(before, cell))
    {
        Signal(before, isRoomy ? "veskar,leads,far" : "veskar,leads,near");
        Signal(cell, isRoomy ? "veskar,follows,far" : "veskar,follows,near");
    }
    else if (isRoomy)
    {
        Signal(before, "veskar,leads");
        Signal(cell, "veskar,follows");
    }
}

/** The layout has the width that the header asks for; its cells may need more. */
Evas_Object* Framed(Evas_Object* header, Evas_Object* lines)
{
    Evas_Object* frame = elm_layout_add(lines);
    elm_layout_theme_set(frame, "columns", "header", "default");
    veskar::SetOuterLeastSize(frame, {veskar::LeastSize(header).width, 0});
    evas_object_size_hint_align_set(frame, EVAS_HINT_FILL, EVAS_HINT_FILL);
    elm_object_part_content_set(frame, "elm.swallow.content", header);
    evas_object_show(frame);
    return frame;
}

void AlignWithRows(Evas_Object* image, Evas_Object* box)
{
    evas_object_size_hint_align_set(image, EVAS_HINT_FILL, 0);
    evas_object_size_hint_align_set(box, EVAS_HINT_FILL, 0);
}

} // namespace

// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the linker's.
extern "C" void __wrap_elm_box_pack_end(Evas_Object* box, Evas_Object* child)
{
    const bool isHeader = !elm_box_horizontal_get(box) && IsRowOfCells(child);
    __real_elm_box_pack_end(box, isHeader ? Framed(child, box) : child);
    if (Is(child, "elm_label") && elm_box_horizontal_get(box))
    {
        KeepFromNeighbour(child, box);
    }
    else if (Is(child, "elm_label"))
    {
        evas_object_size_hint_align_set(child, EVAS_HINT_FILL, EVAS_HINT_FILL);
    }
    else if (Is(child, "elm_image"))
    {
        AlignWithRows(child, box);
    }
}
