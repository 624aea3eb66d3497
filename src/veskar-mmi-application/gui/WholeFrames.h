#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * Keeps half-made pictures from the viewer. The toolkit places and scrolls at once what it tells the theme by messages
 * only, and it may draw before these are read: the rows have moved and the focus has not, the bar beside them is
 * missing, a sheet stands where its slide shall end. While this object lives, all is placed and every message is read
 * before a picture is drawn.
 *
 * Belongs to the screen and comes before its widgets: of two that wait for the main loop's rest, the later is called
 * first.
 */
class WholeFrames
{
public:
    /** `window` may be null, where there is nothing to draw, and may go first. */
    explicit WholeFrames(Evas_Object* window);
    ~WholeFrames();

    WholeFrames(const WholeFrames&) = delete;
    WholeFrames& operator=(const WholeFrames&) = delete;

private:
    static Eina_Bool s_OnRest(void* data);
    static void s_OnWindowDeleted(void* data, Evas* evas, Evas_Object* window, void* eventInfo);

    void m_Stop();

    Evas_Object* m_window;
    Ecore_Idle_Enterer* m_beforeDrawing;
};

} // namespace VESKAR_APP
