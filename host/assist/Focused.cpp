#include "Focused.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace veskar
{
namespace
{

constexpr char SEPARATOR[] = ", ";
// The parts of the theme's rows.
constexpr char ROW_TEXT_PART[] = "elm.text";
constexpr char ROW_CONTENT_PART[] = "elm.swallow.icon";

struct TickWords
{
    const char* language;
    const char* ticked;
    const char* notTicked;
};

constexpr TickWords WORDS[] = {
    {"en", "ticked", "not ticked"},       {"ar", "محدد", "غير محدد"},
    {"de", "angehakt", "nicht angehakt"}, {"el", "επιλεγμένο", "μη επιλεγμένο"},
    {"es", "marcado", "no marcado"},      {"fr", "coché", "non coché"},
    {"he", "מסומן", "לא מסומן"},          {"it", "selezionato", "non selezionato"},
    {"ko", "선택됨", "선택 안 됨"},       {"ru", "отмечено", "не отмечено"},
    {"th", "เลือกแล้ว", "ไม่ได้เลือก"},        {"ur", "منتخب", "غیر منتخب"},
    {"zh", "已选中", "未选中"},
};

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

std::string TickOf(const Focused& focused, const std::string& locale)
{
    if (!CanBeTicked(focused))
    {
        return {};
    }
    const auto* found =
        std::find_if(std::begin(WORDS), std::end(WORDS),
                     [&locale](const TickWords& candidate)
                     { return locale.compare(0, std::strlen(candidate.language), candidate.language) == 0; });
    const TickWords& spoken = found == std::end(WORDS) ? WORDS[0] : *found;
    return focused.ticked ? spoken.ticked : spoken.notTicked;
}

} // namespace veskar
