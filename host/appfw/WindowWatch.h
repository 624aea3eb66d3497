/** The application's own window: when it is shown and hidden, and that it is drawn again when it comes back. */
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

    /** Watches the application's first window, where it has made one; one that is visible already counts as shown now.
     */
    explicit WindowWatch(Changed changed);
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;
    ~WindowWatch();

private:
    static void s_OnShow(void* data, Evas* canvas, Evas_Object* window, void* event);
    static void s_OnHide(void* data, Evas* canvas, Evas_Object* window, void* event);
    static void s_OnDeleted(void* data, Evas* canvas, Evas_Object* window, void* event);
    static Eina_Bool s_OnRedraw(void* data);

    void m_Forget();
    void m_SetShown(bool shown);

    Changed m_changed;
    Evas_Object* m_window = nullptr;
    Ecore_Timer* m_redraw = nullptr;
    bool m_shown = false;
};

} // namespace veskar
