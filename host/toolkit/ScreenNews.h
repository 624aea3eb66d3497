#pragma once

#include "Callback.h"

namespace veskar
{

/** Tells the desk's other parts in this program when a popup comes, when its first frame is drawn and when it is
 * hidden. */
class ScreenNews
{
public:
    explicit ScreenNews(Evas_Object* popup);
    ~ScreenNews();

    ScreenNews(const ScreenNews&) = delete;
    ScreenNews& operator=(const ScreenNews&) = delete;

private:
    static void s_OnDrawn(void* self, Evas* canvas, void* event);

    void m_OnShown();
    void m_OnHidden();
    void m_AwaitNoFrame();

    Evas* m_canvas;
    EventCallback m_shown;
    EventCallback m_hidden;
    bool m_isShown = false;
};

} // namespace veskar
