#pragma once

#include "Callback.h"

namespace veskar
{

/**
 * Keeps half-made pictures from the viewer. The toolkit moves and scrolls widgets immediately, but what it reports to
 * the theme waits in a queue, and it may draw before that is read: the rows have moved and the focus has not, the bar
 * beside them is missing. While this lives, everything is laid out and every message is read before a picture is drawn.
 */
class WholeFrames
{
public:
    explicit WholeFrames(Evas_Object* window);

private:
    void m_Complete();

    Evas* m_canvas;
    IdleEnterer m_beforeDrawing;
};

} // namespace veskar
