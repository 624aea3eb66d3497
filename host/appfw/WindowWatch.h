/**
 * Watches the application's own window: reports when it is shown and hidden, and draws it again when it is shown again.
 * A window that one callback hides and shows again stays on the screen, because otherwise the programme behind it would
 * be seen for a moment between two screens. A window is not taken off the screen before the compositor has answered its
 * first show: the toolkit would forget that it owes an acknowledgement, and the next show would end the connection.
 */
#pragma once

#include <functional>

#include <Elementary.h>

namespace veskar
{

/** Main thread. */
class WindowWatch
{
public:
    /** Called with true for each show and false for each hide, from within the toolkit call that causes it. */
    using Changed = std::function<void(bool shown)>;

    /** Watches the application's first window, if it has one. A window that is already visible counts as shown now. */
    explicit WindowWatch(Changed changed);
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;
    ~WindowWatch();

private:
    static void s_OnShow(void* data, Evas* canvas, Evas_Object* window, void* event);
    static void s_OnHide(void* data, Evas* canvas, Evas_Object* window, void* event);
    static void s_OnDeleted(void* data, Evas* canvas, Evas_Object* window, void* event);
    static Eina_Bool s_OnLeavingScreen(void* data, Evas_Object* window);
    static void s_OnStillHidden(void* data);
    static Eina_Bool s_OnConfigured(void* data, int type, void* event);
    static Eina_Bool s_OnRedraw(void* data);

    void m_Forget();
    void m_StayOnScreen();
    void m_SetShown(bool shown);
    void m_LeaveScreen();

    Changed m_changed;
    Evas_Object* m_window = nullptr;
    Ecore_Timer* m_redraw = nullptr;
    Ecore_Event_Handler* m_configured = nullptr; // set until the compositor has answered the first show
    Ecore_Job* m_leave = nullptr; // set while the window is hidden but the compositor does not know it yet
    bool m_left = false;          // the window has left the screen since it was last drawn explicitly
    bool m_shown = false;
};

} // namespace veskar
