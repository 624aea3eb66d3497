#pragma once

#include <vector>

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * The sizes that a screen's image, list or page would like to have. The toolkit never makes anything smaller than it
 * asks to be, so one too large for the window would push the texts around it out of view. Where that happens these
 * objects ask for less, until the whole screen fits.
 *
 * Belongs to the screen and goes before its widgets; the destructor takes every callback back. Made after the screen's
 * WholeFrames, so that a screen is first brought to its size and the theme hears of that size alone.
 */
class YieldingSize
{
public:
    /** `window` may go first. */
    explicit YieldingSize(Evas_Object* window);
    ~YieldingSize();

    YieldingSize(const YieldingSize&) = delete;
    YieldingSize& operator=(const YieldingSize&) = delete;

    /** The least size in pixels that `object` shall have if it can; asked again, it replaces what was asked before. */
    void Ask(Evas_Object* object, int width, int height);

private:
    struct Wish
    {
        Evas_Object* object;
        int width;
        int height;
    };

    static Eina_Bool s_OnRest(void* data);
    static void s_OnWindowResized(void* data, Evas* evas, Evas_Object* window, void* eventInfo);
    static void s_OnWindowDeleted(void* data, Evas* evas, Evas_Object* window, void* eventInfo);

    void m_Stop();
    /** Lowers the limits by as much as the screen is too large; false when it fits or nothing more can be gained. */
    bool m_Yield();
    void m_Apply() const;

    Evas_Object* m_window;
    Ecore_Idle_Enterer* m_beforeDrawing;
    std::vector<Wish> m_wishes;
    int m_maxWidth;
    int m_maxHeight;
    int m_width; // of the screen when the limits were lowered last: that it is as large still tells that it was in vain
    int m_height;
};

} // namespace VESKAR_APP
