/**
 * The application's own window: when it is shown and hidden, that it is drawn again when it comes back, and that it
 * stays on the screen where one callback hides it and shows it again: else the programme would flash up between two
 * screens.
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

    /** Watches the application's first window, where it has one; one that is visible already counts as shown now. */
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
    static Eina_Bool s_OnRedraw(void* data);

    void m_Forget();
    void m_StayOnScreen();
    void m_SetShown(bool shown);

    Changed m_changed;
    Evas_Object* m_window = nullptr;
    Ecore_Timer* m_redraw = nullptr;
    Ecore_Job* m_leave = nullptr; // the window is hidden, and not yet for the compositor
    bool m_shown = false;
};

} // namespace veskar
