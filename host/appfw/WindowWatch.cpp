#include "WindowWatch.h"

#include <Ecore_Evas.h>
#include <ecore_wayland.h>

#include "Window.h"

/** The toolkit's event when the compositor has answered a new window. Declared as in ecore_wayland.h. */
extern int ECORE_WL2_EVENT_WINDOW_CONFIGURE_COMPLETE;
// NOLINTNEXTLINE(readability-identifier-naming): the name is the toolkit's
struct Ecore_Wl2_Event_Window_Configure_Complete
{
    Ecore_Wl2_Window* win;
};

namespace veskar
{

namespace
{

constexpr const char* WATCH_KEY = "veskar.watch";

Ecore_Evas* CanvasOf(Evas_Object* window)
{
    return ecore_evas_ecore_evas_get(evas_object_evas_get(window));
}

} // namespace

WindowWatch::WindowWatch(Changed changed) : m_changed(std::move(changed)), m_window(FirstWindow())
{
    if (m_window == nullptr)
    {
        return;
    }
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_SHOW, s_OnShow, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_HIDE, s_OnHide, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_DEL, s_OnDeleted, this);
    static const Elm_Win_Trap trap = []
    {
        Elm_Win_Trap calls{};
        calls.version = ELM_WIN_TRAP_VERSION;
        calls.hide = s_OnLeavingScreen;
        return calls;
    }();
    evas_object_data_set(m_window, WATCH_KEY, this);
    elm_win_trap_set(&trap);
    if (ecore_evas_wayland2_window_get(CanvasOf(m_window)) != nullptr)
    {
        m_configured = ecore_event_handler_add(ECORE_WL2_EVENT_WINDOW_CONFIGURE_COMPLETE, s_OnConfigured, this);
    }
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
    m_StayOnScreen();
    if (m_configured != nullptr)
    {
        ecore_event_handler_del(m_configured);
        m_configured = nullptr;
    }
    if (m_window == nullptr)
    {
        return;
    }
    elm_win_trap_set(nullptr);
    evas_object_data_del(m_window, WATCH_KEY);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_SHOW, s_OnShow, this);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_HIDE, s_OnHide, this);
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_DEL, s_OnDeleted, this);
    m_window = nullptr;
}

void WindowWatch::m_SetShown(bool shown)
{
    if (shown && m_left && m_redraw == nullptr)
    {
        m_redraw = ecore_timer_add(0, s_OnRedraw, this);
        m_left = false;
    }
    m_StayOnScreen();
    // The toolkit reports each call, even when it changes nothing.
    if (shown != m_shown)
    {
        m_shown = shown;
        m_changed(shown);
    }
}

void WindowWatch::m_StayOnScreen()
{
    if (m_leave != nullptr)
    {
        ecore_job_del(m_leave);
        m_leave = nullptr;
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

Eina_Bool WindowWatch::s_OnLeavingScreen(void*, Evas_Object* window)
{
    auto* watch = static_cast<WindowWatch*>(evas_object_data_get(window, WATCH_KEY));
    if (watch == nullptr)
    {
        return EINA_TRUE;
    }
    if (watch->m_leave == nullptr)
    {
        watch->m_leave = ecore_job_add(s_OnStillHidden, watch);
    }
    return EINA_FALSE;
}

void WindowWatch::s_OnStillHidden(void* data)
{
    auto* watch = static_cast<WindowWatch*>(data);
    watch->m_leave = nullptr;
    if (watch->m_configured == nullptr)
    {
        watch->m_LeaveScreen();
    }
}

void WindowWatch::m_LeaveScreen()
{
    m_left = true;
    ecore_evas_hide(CanvasOf(m_window));
}

Eina_Bool WindowWatch::s_OnConfigured(void* data, int, void* event)
{
    auto* watch = static_cast<WindowWatch*>(data);
    const auto* window = static_cast<Ecore_Wl2_Event_Window_Configure_Complete*>(event)->win;
    if (window != ecore_evas_wayland2_window_get(CanvasOf(watch->m_window)))
    {
        return ECORE_CALLBACK_PASS_ON;
    }
    watch->m_configured = nullptr;
    if (!watch->m_shown && watch->m_leave == nullptr)
    {
        watch->m_LeaveScreen();
    }
    return ECORE_CALLBACK_CANCEL;
}

void WindowWatch::s_OnDeleted(void* data, Evas*, Evas_Object*, void*)
{
    auto* watch = static_cast<WindowWatch*>(data);
    watch->m_SetShown(false);
    watch->m_Forget();
}

/**
 * Without this, a window that was hidden and shown again would stay invisible and get no keys: the toolkit draws
 * nothing until the compositor has acknowledged the last picture before the window was hidden, which never happens.
 * Drawing explicitly ends that wait.
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
        // An explicit drawing does not wait until the main loop has laid out the whole screen.
        evas_smart_objects_calculate(canvas);
        edje_message_signal_process();
        ecore_evas_manual_render(CanvasOf(watch->m_window));
    }
    return ECORE_CALLBACK_CANCEL;
}

} // namespace veskar
