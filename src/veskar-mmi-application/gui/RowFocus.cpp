#include "RowFocus.h"

#include "EflGuard.h"

#include <string_view>

namespace VESKAR_APP
{

namespace
{

constexpr std::string_view KEY_DOWN = "Down";

/** Lights or dims the row with the signal that the toolkit itself uses. */
void SignalFocusedRow(Evas_Object* list, const char* signal)
{
    Elm_Object_Item* row = elm_object_focused_item_get(list);
    if (row != nullptr)
    {
        elm_object_item_signal_emit(row, signal, "elm");
    }
}

} // namespace

RowFocus::RowFocus(Evas_Object* window, Evas_Object* list) : m_window(window), m_list(list), m_below(nullptr)
{
    const MainLoopSection section;
    elm_object_item_focus_set(elm_genlist_first_item_get(m_list), EINA_TRUE);
    evas_object_smart_callback_add(m_window, "focused", s_OnWindowFocused, this);
    evas_object_smart_callback_add(m_list, "focused", s_OnListFocused, nullptr);
    evas_object_smart_callback_add(m_list, "unfocused", s_OnListUnfocused, nullptr);
}

RowFocus::~RowFocus()
{
    EFL_GUARD(evas_object_smart_callback_del_full, m_window, "focused", s_OnWindowFocused, this);
}

void RowFocus::LeadDownTo(Evas_Object* button)
{
    if (m_below == nullptr)
    {
        EFL_GUARD(elm_object_event_callback_add, m_list, s_OnKey, this);
    }
    m_below = button;
}

void RowFocus::s_OnWindowFocused(void* data, Evas_Object* window, void* /*eventInfo*/)
{
    // A list that was given the focus before the window had it has remembered the row and not focused it.
    Evas_Object* list = static_cast<RowFocus*>(data)->m_list;
    const MainLoopSection section;
    if (elm_object_focused_object_get(window) == list && elm_object_focused_item_get(list) == nullptr)
    {
        elm_object_item_focus_set(elm_genlist_first_item_get(list), EINA_TRUE);
    }
}

void RowFocus::s_OnListFocused(void* /*data*/, Evas_Object* list, void* /*eventInfo*/)
{
    const MainLoopSection section;
    SignalFocusedRow(list, "elm,state,focused");
}

void RowFocus::s_OnListUnfocused(void* /*data*/, Evas_Object* list, void* /*eventInfo*/)
{
    const MainLoopSection section;
    SignalFocusedRow(list, "elm,state,unfocused");
}

Eina_Bool RowFocus::s_OnKey(void* data, Evas_Object* list, Evas_Object* /*source*/, Evas_Callback_Type type,
                            void* eventInfo)
{
    if (type != EVAS_CALLBACK_KEY_DOWN || static_cast<Evas_Event_Key_Down*>(eventInfo)->key != KEY_DOWN)
    {
        return EINA_FALSE;
    }
    // This comes before the list's own handling, which has a row to go to from every row but the last.
    const MainLoopSection section;
    if (elm_object_focused_item_get(list) != elm_genlist_last_item_get(list))
    {
        return EINA_FALSE;
    }
    elm_object_focus_set(static_cast<RowFocus*>(data)->m_below, EINA_TRUE);
    return EINA_TRUE;
}

} // namespace VESKAR_APP
