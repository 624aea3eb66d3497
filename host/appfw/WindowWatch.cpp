#include "WindowWatch.h"

#include <Ecore_Evas.h>

#include "Window.h"

namespace veskar
{

WindowWatch::WindowWatch(Changed changed) : m_changed(std::move(changed)), m_window(FirstWindow())
{
    if (m_window == nullptr)
    {
        return;
    }
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_SHOW, s_OnShow, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_HIDE, s_OnHide, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_DEL, s_OnDeleted, this);
    m_SetShown(evas_object_visible_get(m_window));
}

WindowWatch::~WindowWatch()
{
    m_Forget();
}

void WindowWatch::m_Forget()
{
    if (m_redraw != nullptr)
    {
        ecore_timer_del(m_redraw);
        m_redraw = nullptr;
    }
    if (m_window == nullptr)
    {
        return;
    }
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_SHOW, s_OnShow, this);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_HIDE, s_OnHide, this);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_DEL, s_OnDeleted, this);
    m_window = nullptr;
}

void WindowWatch::m_SetShown(bool shown)
{
    if (shown && m_redraw == nullptr)
    {
        m_redraw = ecore_timer_add(0, s_OnRedraw, this);
    }
    // The toolkit tells of each call, also when it changes nothing.
    if (shown != m_shown)
    {
        m_shown = shown;
        m_changed(shown);
    }
}

void WindowWatch::s_OnShow(void* data, Evas*, Evas_Object*, void*)
{
    static_cast<WindowWatch*>(data)->m_SetShown(true);
}

void WindowWatch::s_OnHide(void* data, Evas*, Evas_Object*, void*)
{
    static_cast<WindowWatch*>(data)->m_SetShown(false);
}

void WindowWatch::s_OnDeleted(void* data, Evas*, Evas_Object*, void*)
{
    auto* watch = static_cast<WindowWatch*>(data);
    watch->m_SetShown(false);
    watch->m_Forget();
}

/**
 * A window that was hidden and shown again stays invisible and deaf by itself: the toolkit draws nothing until the
 * compositor has answered for the last picture before the hiding, which it never does. Drawing by hand breaks the wait.
 */
Eina_Bool WindowWatch::s_OnRedraw(void* data)
{
    auto* watch = static_cast<WindowWatch*>(data);
    watch->m_redraw = nullptr;
    if (watch->m_shown)
    {
        auto* canvas = evas_object_evas_get(watch->m_window);
        int width = 0;
        int height = 0;
        evas_output_size_get(canvas, &width, &height);
        evas_damage_rectangle_add(canvas, 0, 0, width, height);
        ecore_evas_manual_render(ecore_evas_ecore_evas_get(canvas));
    }
    return ECORE_CALLBACK_CANCEL;
}

} // namespace veskar
