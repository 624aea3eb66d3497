/** The pad's window: transparent, as large as the screen, with the panel of keys in it. */
#pragma once

#include "FreeWith.h"
#include "KeyGrid.h"

#include <Elementary.h>
#include <functional>
#include <memory>
#include <vector>

namespace veskar
{

/**
 * Main thread only, while the toolkit is initialised. There is one window for the whole process, which the toolkit
 * deletes when it shuts down: deleted earlier, it crashes on an event that still waits for it.
 */
class PadWindow
{
public:
    /**
     * Not on the screen. `alone` is called from the main loop while the window is shown, when the compositor takes the
     * focus from it because no screen is below it.
     */
    explicit PadWindow(std::function<void()> alone);

    PadWindow(const PadWindow&) = delete;
    PadWindow& operator=(const PadWindow&) = delete;

    Evas_Object* Window() const { return m_window; }

    /** `appeared` is called from the main loop, once, when the window is on the screen. */
    void Show(const KeyGrid& keys, std::function<void()> appeared);

    /** `appeared` is not called any more. */
    void Hide();

    /** Moves the focus to the key with this index in the grid's places. */
    void SetCurrent(std::size_t key);

private:
    static void s_OnDrawn(void* data, Evas* canvas, void* event);
    static void s_OnUnfocused(void* data, Evas_Object* window, void* event);
    static void s_CheckFocus(void* data);

    void m_AddPanel(const KeyGrid& keys);
    Evas_Object* m_AddKey(const char* key);

    std::function<void()> m_appeared;
    std::function<void()> m_alone;
    Evas_Object* m_window;
    std::unique_ptr<Evas_Object, FreeWith<evas_object_del>> m_panel; // while it is shown
    std::vector<Evas_Object*> m_keys; // within the panel, in the order of the grid's places
    std::size_t m_current = 0;
    std::unique_ptr<Ecore_Job, FreeWith<ecore_job_del>> m_check;
};

} // namespace veskar
