#include "RowFocus.h"

#include "Widgets.h"

namespace veskar
{
namespace
{

/** Lights or dims the row with the signal that the toolkit itself uses. */
void SignalRow(Elm_Object_Item* row, bool lit)
{
    if (row != nullptr)
    {
        elm_object_item_signal_emit(row, lit ? "elm,state,focused" : "elm,state,unfocused", "elm");
    }
}

/** Keys by which the list moves to a row of its own choice. */
bool IsJump(std::string_view key)
{
    return key == "Home" || key == "End" || key == "Prior" || key == "Next";
}

/** Null where the screen has no button or hides it. */
Evas_Object* FirstButton(const Evas_Object* list)
{
    const Evas_Object* popup = PopupAround(list);
    Evas_Object* button = popup != nullptr ? elm_object_part_content_get(popup, "button1") : nullptr;
    return button != nullptr && evas_object_visible_get(button) ? button : nullptr;
}

} // namespace

RowFocus::RowFocus(Evas_Object* list)
    : m_list(list), m_window(elm_object_top_widget_get(list)),
      m_shown(list, EVAS_CALLBACK_SHOW, CallEvent<&RowFocus::m_OnShown>, this),
      m_windowFocused(m_window, "focused", CallSmart<&RowFocus::m_OnWindowFocused>, this),
      m_listFocused(list, "focused", CallSmart<&RowFocus::m_OnListFocused>, this),
      m_listUnfocused(list, "unfocused", CallSmart<&RowFocus::m_OnListUnfocused>, this),
      m_rowFocused(list, "item,focused", CallSmart<&RowFocus::m_OnRowFocused>, this),
      m_rowRealised(list, "realized", CallSmart<&RowFocus::m_OnRowRealised>, this),
      m_rowSelected(list, "selected", CallSmart<&RowFocus::m_OnRowPressed>, this),
      m_rowUnselected(list, "unselected", CallSmart<&RowFocus::m_OnRowPressed>, this)
{
    elm_object_event_callback_add(m_list, s_OnKey, this);
}

RowFocus::~RowFocus()
{
    elm_object_event_callback_del(m_list, s_OnKey, this);
    if (m_restoring != nullptr)
    {
        ecore_job_del(m_restoring);
    }
}

Elm_Object_Item* RowFocus::m_Row() const
{
    return m_moved ? m_row : elm_genlist_first_item_get(m_list);
}

void RowFocus::m_SetRow(Elm_Object_Item* row)
{
    m_row = row;
    m_moved = true;
}

void RowFocus::m_OnShown()
{
    // So that a row is lit in the first picture. What asks for the focus later, as a screen's first button does, has
    // it.
    elm_object_item_focus_set(m_Row(), EINA_TRUE);
}

void RowFocus::m_OnWindowFocused(void* /*info*/)
{
    // A list that was given the focus before the window had it has remembered the row and not focused it.
    m_LightEarly(false);
    m_Restore();
}

void RowFocus::m_OnListFocused(void* /*info*/)
{
    SignalRow(elm_object_focused_item_get(m_list), true);
    m_RestoreSoon();
}

void RowFocus::m_OnListUnfocused(void* /*info*/)
{
    SignalRow(elm_object_focused_item_get(m_list), false);
}

void RowFocus::m_OnRowFocused(void* row)
{
    if (row != m_Row())
    {
        m_RestoreSoon();
    }
}

void RowFocus::m_OnRowRealised(void* row)
{
    if (row == m_Row())
    {
        // A list that is given the focus while its only row is created reports nothing and focuses no row.
        m_RestoreSoon();
    }
}

void RowFocus::m_OnRowPressed(void* row)
{
    m_SetRow(static_cast<Elm_Object_Item*>(row));
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
    // After an answer the screen is hidden, and a key may still come.
    auto* focus = static_cast<RowFocus*>(data);
    if (type != EVAS_CALLBACK_KEY_DOWN || !evas_object_visible_get(PopupAround(focus->m_list)))
    {
        return EINA_FALSE;
    }
    const bool used = focus->m_TakeKey(static_cast<Evas_Event_Key_Down*>(eventInfo)->key);
    return used ? EINA_TRUE : EINA_FALSE;
}

bool RowFocus::m_TakeKey(std::string_view key)
{
    m_Restore();
    if (key == "Up" || key == "Down")
    {
        return m_Move(key == "Up" ? Way::Up : Way::Down);
    }
    if (IsJump(key))
    {
        m_SetRow(nullptr);
    }
    return false;
}

bool RowFocus::m_Move(Way way)
{
    Elm_Object_Item* row = m_Row() != nullptr ? m_Row() : elm_object_focused_item_get(m_list);
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
        m_SetRow(next);
        m_Restore();
        ShowRow(m_list, next, way);
        return true;
    }
    // Of two buttons equally near below it the toolkit would take either.
    Evas_Object* button = way == Way::Down ? FirstButton(m_list) : nullptr;
    if (button != nullptr)
    {
        elm_object_focus_set(button, EINA_TRUE);
    }
    return button != nullptr;
}

void RowFocus::m_Restore()
{
    m_LightEarly(!elm_win_focus_get(m_window) && elm_object_focused_object_get(m_window) == m_list);
    Elm_Object_Item* row = m_Row();
    if (row != nullptr && elm_object_focus_get(m_list) && elm_object_focused_item_get(m_list) != row)
    {
        elm_object_item_focus_set(row, EINA_TRUE);
    }
}

void RowFocus::m_LightEarly(bool lit)
{
    if (m_Row() == nullptr || lit == m_litEarly)
    {
        return;
    }
    m_litEarly = lit;
    SignalRow(m_Row(), lit);
}

void RowFocus::m_RestoreSoon()
{
    // Not now: the toolkit is in the middle of moving the focus.
    if (m_restoring == nullptr)
    {
        m_restoring = ecore_job_add(s_OnMoved, this);
    }
}

} // namespace veskar
