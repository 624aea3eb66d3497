#pragma once

#include "Callback.h"
#include "SizeHints.h"

#include <limits>
#include <map>

namespace veskar
{

/**
 * Fits a screen that is larger than the TV. The toolkit never makes a widget smaller than its least size, so one that
 * is too large would push the texts around it out of view, or widen the panel. Where that happens, the least sizes of
 * images, lists and text pages are lowered until the whole screen fits what the theme has room for.
 *
 * Construct it after the screen's WholeFrames: the screen is then fitted first, and the theme hears only of its final
 * size.
 */
class ScreenFit
{
public:
    /** `popup` is the screen. */
    ScreenFit(Evas_Object* window, Evas_Object* popup);

private:
    static constexpr int UNLIMITED = std::numeric_limits<int>::max();

    /** The least size that a widget asks for, and the one that it was given instead. */
    struct Least
    {
        Size asked;
        Size given;
    };

    void m_OnWindowResized();
    void m_Fit();

    /** Finds what can be lowered, and notes what each asks for. */
    void m_Collect();
    void m_Visit(Evas_Object* object, std::map<Evas_Object*, Least>& found);
    /** Lowers the limits by as much as the screen is too large; false when it fits or nothing more can be gained. */
    bool m_Lower();
    void m_Apply();
    bool m_HasList() const;

    Evas_Object* m_window;
    Evas_Object* m_popup;
    std::map<Evas_Object*, Least> m_leasts;
    Size m_limit{UNLIMITED, UNLIMITED};
    Size m_screen; // when the limits were lowered last: if it is as large still, that was in vain
    EventCallback m_windowResized;
    IdleEnterer m_beforeDrawing;
};

} // namespace veskar
