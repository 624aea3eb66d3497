#include "WholeFrames.h"

#include "EflGuard.h"

namespace VESKAR_APP
{

WholeFrames::WholeFrames(Evas_Object* window) : m_window(window), m_beforeDrawing(nullptr)
{
    if (m_window == nullptr)
    {
        return;
    }
    const MainLoopSection section;
    m_beforeDrawing = ecore_idle_enterer_add(s_OnRest, this);
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_DEL, s_OnWindowDeleted, this);
}

WholeFrames::~WholeFrames()
{
    m_Stop();
}

void WholeFrames::m_Stop()
{
    if (m_window == nullptr)
    {
        return;
    }
    const MainLoopSection section;
    evas_object_event_callback_del_full(m_window, EVAS_CALLBACK_DEL, s_OnWindowDeleted, this);
    ecore_idle_enterer_del(m_beforeDrawing);
    m_window = nullptr;
}

Eina_Bool WholeFrames::s_OnRest(void* data)
{
    const MainLoopSection section;
    // Placing tells the theme more: what a list has room for decides on the bar beside it.
    evas_smart_objects_calculate(evas_object_evas_get(static_cast<WholeFrames*>(data)->m_window));
    edje_message_signal_process();
    return ECORE_CALLBACK_RENEW;
}

void WholeFrames::s_OnWindowDeleted(void* data, Evas* /*evas*/, Evas_Object* /*window*/, void* /*eventInfo*/)
{
    static_cast<WholeFrames*>(data)->m_Stop();
}

} // namespace VESKAR_APP
