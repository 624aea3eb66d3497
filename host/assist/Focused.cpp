#include "Focused.h"

#include "Words.h"

#include <cstring>

namespace veskar
{
namespace
{

constexpr char SEPARATOR[] = ", ";
// The parts of the theme's rows.
constexpr char ROW_TEXT_PART[] = "elm.text";
constexpr char ROW_CONTENT_PART[] = "elm.swallow.icon";

bool Is(const Evas_Object* object, const char* type)
{
    const char* actual = object ? evas_object_type_get(object) : nullptr;
    return actual && std::strcmp(actual, type) == 0;
}

std::string OrEmpty(const char* text)
{
    return text ? text : "";
}

/** The cells of a row are labels in a box. */
std::string CellsOf(Elm_Object_Item* row)
{
    const Evas_Object* content = elm_object_item_part_content_get(row, ROW_CONTENT_PART);
    std::string text;
    if (!Is(content, "elm_box"))
    {
        return text;
    }
    void* cell = nullptr;
    Eina_List* cells = elm_box_children_get(content);
    EINA_LIST_FREE(cells, cell)
    {
        const std::string next = OrEmpty(elm_object_text_get(static_cast<Evas_Object*>(cell)));
        text += text.empty() || next.empty() ? next : SEPARATOR + next;
    }
    return text;
}

bool CanBeTicked(const Focused& focused)
{
    return focused.row && elm_genlist_multi_select_get(focused.object);
}

} // namespace

Focused FindFocused(const Evas_Object* window)
{
    Focused focused;
    if (!elm_win_focus_get(window))
    {
        return focused;
    }
    focused.object = elm_object_focused_object_get(window);
    if (Is(focused.object, "elm_genlist"))
    {
        focused.row = elm_object_focused_item_get(focused.object);
        focused.ticked = CanBeTicked(focused) && elm_genlist_item_selected_get(focused.row);
    }
    return focused;
}

std::string TextOf(const Focused& focused)
{
    if (!focused.row)
    {
        return Is(focused.object, "elm_button") ? OrEmpty(elm_object_text_get(focused.object)) : std::string();
    }
    const std::string cells = CellsOf(focused.row);
    return cells.empty() ? OrEmpty(elm_object_item_part_text_get(focused.row, ROW_TEXT_PART)) : cells;
}

std::string TickOf(const Focused& focused)
{
    return CanBeTicked(focused) ? TickWord(focused.ticked) : std::string();
}

std::string PlaceOf(const Focused& focused)
{
    const int rows = focused.row ? static_cast<int>(elm_genlist_items_count(focused.object)) : 0;
    return rows > 1 ? NumberOf(elm_genlist_item_index_get(focused.row), rows) : std::string();
}

} // namespace veskar
