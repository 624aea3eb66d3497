// Numbers and Korean words stay together, and in the panel at the side a text begins where the title does, also one
// that its markup centres. The rest is what the theme's labels cannot find out on their own: that there is nothing to
// read between the tags of their markup, whether they stand above or below a screen's content, and that they stand in
// the panel at the side, where lines are shorter. Lines may be counted right after a text or a style was set, so all is
// passed on immediately.

#include "CString.h"
#include "TextFit.h"
#include "Widgets.h"
#include "Words.h"

namespace
{

constexpr const char* LINES_STYLE = "popup/c_popup_bottom";

/** A message, or a line above or below a screen's content; a cell of a list is none. */
bool IsLine(const Evas_Object* object)
{
    return veskar::Is(object, "elm_label") && std::strcmp(elm_object_style_get(object), LINES_STYLE) == 0;
}

bool StandsInSidePanel(const Evas_Object* label)
{
    const Evas_Object* popup = veskar::PopupAround(label);
    return popup != nullptr && veskar::IsAtSide(popup);
}

std::string WithoutCentring(std::string markup)
{
    constexpr std::string_view CENTRED = "<align=center>";
    const std::size_t at = markup.find(CENTRED);
    return at == std::string::npos ? markup : markup.erase(at, CENTRED.size());
}

/** What the toolkit is given to show. */
std::string Shown(const Evas_Object* object, const char* text)
{
    std::string shown = veskar::WithWordsTogether(text);
    return IsLine(object) && StandsInSidePanel(object) ? WithoutCentring(std::move(shown)) : shown;
}

bool HasInk(const Evas_Object* label)
{
    const veskar::CString text(elm_entry_markup_to_utf8(elm_object_text_get(label)));
    return text != nullptr && *text != '\0';
}

/** Where a line in the screen's box of lines stands; a message stands in its content. */
const char* Place(const Evas_Object* label)
{
    const Evas_Object* lines = elm_object_parent_widget_get(label);
    if (!veskar::Is(lines, "elm_box"))
    {
        return nullptr;
    }
    Eina_List* children = elm_box_children_get(lines);
    const bool isFirst = children == nullptr || eina_list_data_get(children) == label;
    eina_list_free(children);
    return isFirst ? "veskar,above" : "veskar,below";
}

void InformTheme(Evas_Object* label)
{
    if (!IsLine(label))
    {
        return;
    }
    if (const char* place = Place(label))
    {
        elm_object_signal_emit(label, place, "veskar");
    }
    elm_object_signal_emit(label, HasInk(label) ? "veskar,filled" : "veskar,empty", "veskar");
    if (StandsInSidePanel(label))
    {
        elm_object_signal_emit(label, "veskar,side", "veskar");
    }
    edje_object_message_signal_process(elm_layout_edje_get(label));
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    void __real_elm_object_part_text_set(Evas_Object* object, const char* part, const char* text);
    Eina_Bool __real_elm_object_style_set(Evas_Object* object, const char* style);

    void __wrap_elm_object_part_text_set(Evas_Object* object, const char* part, const char* text)
    {
        if (veskar::Is(object, "elm_label"))
        {
            veskar::UndoTextFit(elm_layout_edje_get(object));
        }
        const std::string shown = text != nullptr ? Shown(object, text) : "";
        __real_elm_object_part_text_set(object, part, text != nullptr ? shown.c_str() : nullptr);
        InformTheme(object);
    }

    Eina_Bool __wrap_elm_object_style_set(Evas_Object* object, const char* style)
    {
        const Eina_Bool set = __real_elm_object_style_set(object, style);
        InformTheme(object);
        return set;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
