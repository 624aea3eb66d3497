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

/** Main thread only, while the toolkit is initialised. */
class PadWindow
{
public:
    /**
     * Shows the keys. `appeared` is called once, when the window is on the screen; `closed` when the compositor closes
     * it. Both are called from the main loop.
     */
    PadWindow(const KeyGrid& keys, std::function<void()> appeared, std::function<void()> closed);
    ~PadWindow();

    PadWindow(const PadWindow&) = delete;
    PadWindow& operator=(const PadWindow&) = delete;

    Evas_Object* Window() const { return m_window.get(); }

    /** Moves the focus to the key with this index in the grid's places. */
    void SetCurrent(std::size_t key);

private:
    static void s_OnDrawn(void* data, Evas* canvas, void* event);
    static void s_OnClose(void* data, Evas_Object* window, void* event);

    void m_AddPanel(const KeyGrid& keys);
    Evas_Object* m_AddKey(const char* key);

    std::function<void()> m_appeared;
    std::function<void()> m_closed;
    std::unique_ptr<Evas_Object, FreeWith<evas_object_del>> m_window;
    std::vector<Evas_Object*> m_keys; // the window's children, in the order of the grid's places
    std::size_t m_current = 0;
    bool m_isClosed = false;
};

} // namespace veskar
