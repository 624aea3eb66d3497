#include "RowFocus.h"

#include "EflGuard.h"
#include "Names.h"

namespace VESKAR_APP
{

namespace
{

/** Lights or dims the row with the signal that the toolkit itself uses. */
void SignalFocusedRow(Evas_Object* list, const char* signal)
{
    Elm_Object_Item* row = elm_object_focused_item_get(list);
    if (row != nullptr)
    {
        elm_object_item_signal_emit(row, signal, "elm");
    }
}

/** Keys by which the list goes to a row of its own choice. */
bool IsJump(std::string_view key)
{
    return key == "Home" || key == "End" || key == "Prior" || key == "Next";
}

} // namespace

RowFocus::RowFocus(Evas_Object* window, Evas_Object* list)
    : m_window(window), m_list(list), m_below(nullptr), m_row(nullptr), m_litEarly(false), m_restoring(nullptr)
{
    const MainLoopSection section;
    m_row = elm_genlist_first_item_get(m_list);
    elm_object_item_focus_set(m_row, EINA_TRUE);
    evas_object_smart_callback_add(m_window, "focused", s_OnWindowFocused, this);
    evas_object_smart_callback_add(m_list, "focused", s_OnListFocused, this);
    evas_object_smart_callback_add(m_list, "unfocused", s_OnListUnfocused, this);
    evas_object_smart_callback_add(m_list, "item,focused", s_OnRowFocused, this);
    evas_object_smart_callback_add(m_list, "realized", s_OnRowRealised, this);
    evas_object_smart_callback_add(m_list, "selected", s_OnRowPressed, this);
    evas_object_smart_callback_add(m_list, "unselected", s_OnRowPressed, this);
    elm_object_event_callback_add(m_list, s_OnKey, this);
}

RowFocus::~RowFocus()
{
    const MainLoopSection section;
    evas_object_smart_callback_del_full(m_window, "focused", s_OnWindowFocused, this);
    // The rows go before the list does, and each that had the focus leaves it to another.
    evas_object_smart_callback_del_full(m_list, "focused", s_OnListFocused, this);
    evas_object_smart_callback_del_full(m_list, "unfocused", s_OnListUnfocused, this);
    evas_object_smart_callback_del_full(m_list, "item,focused", s_OnRowFocused, this);
    evas_object_smart_callback_del_full(m_list, "realized", s_OnRowRealised, this);
    evas_object_smart_callback_del_full(m_list, "selected", s_OnRowPressed, this);
    evas_object_smart_callback_del_full(m_list, "unselected", s_OnRowPressed, this);
    elm_object_event_callback_del(m_list, s_OnKey, this);
    if (m_restoring != nullptr)
    {
        ecore_job_del(m_restoring);
    }
}

void RowFocus::MoveTo(Elm_Object_Item* row)
{
    m_row = row;
    m_Restore();
}

void RowFocus::LeadDownTo(Evas_Object* button)
{
    m_below = button;
}

void RowFocus::s_OnWindowFocused(void* data, Evas_Object* /*window*/, void* /*eventInfo*/)
{
    // A list that was given the focus before the window had it has remembered the row and not focused it.
    auto* focus = static_cast<RowFocus*>(data);
    focus->m_LightEarly(false);
    focus->m_Restore();
}

void RowFocus::s_OnListFocused(void* data, Evas_Object* list, void* /*eventInfo*/)
{
    const MainLoopSection section;
    SignalFocusedRow(list, "elm,state,focused");
    static_cast<RowFocus*>(data)->m_RestoreSoon();
}

void RowFocus::s_OnListUnfocused(void* /*data*/, Evas_Object* list, void* /*eventInfo*/)
{
    const MainLoopSection section;
    SignalFocusedRow(list, "elm,state,unfocused");
}

void RowFocus::s_OnRowFocused(void* data, Evas_Object* /*list*/, void* row)
{
    auto* focus = static_cast<RowFocus*>(data);
    if (row != focus->m_row)
    {
        focus->m_RestoreSoon();
    }
}

void RowFocus::s_OnRowRealised(void* data, Evas_Object* /*list*/, void* row)
{
    auto* focus = static_cast<RowFocus*>(data);
    if (row == focus->m_row)
    {
        // A list that is given the focus while its only row comes into being tells nobody and focuses no row.
        focus->m_RestoreSoon();
    }
}

void RowFocus::s_OnRowPressed(void* data, Evas_Object* /*list*/, void* row)
{
    static_cast<RowFocus*>(data)->m_row = static_cast<Elm_Object_Item*>(row);
}

void RowFocus::s_OnMoved(void* data)
{
    auto* focus = static_cast<RowFocus*>(data);
    focus->m_restoring = nullptr;
    focus->m_Restore();
}

Eina_Bool RowFocus::s_OnKey(void* data, Evas_Object* /*list*/, Evas_Object* /*source*/, Evas_Callback_Type type,
                            void* eventInfo)
{
    // This comes before the list's own handling.
    if (type != EVAS_CALLBACK_KEY_DOWN)
    {
        return EINA_FALSE;
    }
    const bool used = static_cast<RowFocus*>(data)->m_TakeKey(static_cast<Evas_Event_Key_Down*>(eventInfo)->key);
    return used ? EINA_TRUE : EINA_FALSE;
}

bool RowFocus::m_TakeKey(std::string_view key)
{
    const MainLoopSection section;
    m_Restore();
    if (key == KEY_UP || key == KEY_DOWN)
    {
        return m_Go(key == KEY_UP ? Way::UP : Way::DOWN);
    }
    if (IsJump(key))
    {
        m_row = nullptr;
    }
    return false;
}

bool RowFocus::m_Go(Way way)
{
    Elm_Object_Item* row = m_row != nullptr ? m_row : elm_object_focused_item_get(m_list);
    if (row == nullptr)
    {
        return false;
    }
    if (ScrollWithin(m_list, row, way))
    {
        return true;
    }
    if (Elm_Object_Item* next = Neighbour(row, way))
    {
        MoveTo(next);
        ShowRow(m_list, next, way);
        return true;
    }
    if (m_below != nullptr && way == Way::DOWN)
    {
        elm_object_focus_set(m_below, EINA_TRUE);
        return true;
    }
    return false;
}

void RowFocus::m_Restore()
{
    const MainLoopSection section;
    m_LightEarly(!elm_win_focus_get(m_window) && elm_object_focused_object_get(m_window) == m_list);
    if (m_row != nullptr && elm_object_focus_get(m_list) && elm_object_focused_item_get(m_list) != m_row)
    {
        elm_object_item_focus_set(m_row, EINA_TRUE);
    }
}

void RowFocus::m_LightEarly(bool lit)
{
    if (m_row == nullptr || lit == m_litEarly)
    {
        return;
    }
    m_litEarly = lit;
    const MainLoopSection section;
    elm_object_item_signal_emit(m_row, lit ? "elm,state,focused" : "elm,state,unfocused", "elm");
}

void RowFocus::m_RestoreSoon()
{
    // Not at once: the toolkit is in the middle of moving the focus.
    const MainLoopSection section;
    if (m_restoring == nullptr)
    {
        m_restoring = ecore_job_add(s_OnMoved, this);
    }
}

} // namespace VESKAR_APP
