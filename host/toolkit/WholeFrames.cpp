#include "WholeFrames.h"

namespace veskar
{

WholeFrames::WholeFrames(Evas_Object* window)
    : m_canvas(evas_object_evas_get(window)), m_beforeDrawing(CallTask<&WholeFrames::m_Complete>, this)
{
}

void WholeFrames::m_Complete()
{
    // Laying out reports more to the theme: what a list has room for decides on the bar beside it.
    evas_smart_objects_calculate(m_canvas);
    edje_message_signal_process();
}

} // namespace veskar
