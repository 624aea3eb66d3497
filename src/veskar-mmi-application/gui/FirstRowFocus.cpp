#include "FirstRowFocus.h"

#include "EflGuard.h"

namespace VESKAR_APP
{

FirstRowFocus::FirstRowFocus(Evas_Object* window, Evas_Object* list) : m_window(window), m_list(list)
{
    const MainLoopSection section;
    elm_object_item_focus_set(elm_genlist_first_item_get(m_list), EINA_TRUE);
    evas_object_smart_callback_add(m_window, "focused", s_OnWindowFocused, this);
}

FirstRowFocus::~FirstRowFocus()
{
    EFL_GUARD(evas_object_smart_callback_del_full, m_window, "focused", s_OnWindowFocused, this);
}

void FirstRowFocus::s_OnWindowFocused(void* data, Evas_Object* window, void* /*eventInfo*/)
{
    // A list that was given the focus before the window had it has remembered the row and not focused it.
    Evas_Object* list = static_cast<FirstRowFocus*>(data)->m_list;
    const MainLoopSection section;
    if (elm_object_focused_object_get(window) == list && elm_object_focused_item_get(list) == nullptr)
    {
        elm_object_item_focus_set(elm_genlist_first_item_get(list), EINA_TRUE);
    }
}

} // namespace VESKAR_APP
