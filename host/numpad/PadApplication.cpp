#include "PadApplication.h"

#include <Elementary.h>

namespace veskar
{

namespace
{

// The pad closes with the screen below. That screen's request to hide the pad may still arrive after that.
constexpr double IDLE_SECONDS = 1;

} // namespace

void PadApplication::Create()
{
    m_window.emplace([this] { m_HideSoon(); });
    m_EndSoon();
}

void PadApplication::Show(bool withBackSpace)
{
    m_idle.reset();
    if (!m_pad)
    {
        m_pad.emplace(withBackSpace, *m_window, [this] { m_HideSoon(); });
    }
}

void PadApplication::Hide()
{
    m_pad.reset();
    m_EndSoon();
}

void PadApplication::Terminate()
{
    m_pad.reset();
    m_hiding.reset();
    m_idle.reset();
}

void PadApplication::m_EndSoon()
{
    m_idle.reset(ecore_timer_add(IDLE_SECONDS, s_OnIdle, this));
}

/** Not immediately: the caller may be one of the pad's own callbacks. */
void PadApplication::m_HideSoon()
{
    m_hiding.reset(ecore_job_add(s_HideNow, this));
}

void PadApplication::s_HideNow(void* data)
{
    auto* self = static_cast<PadApplication*>(data);
    static_cast<void>(self->m_hiding.release()); // the toolkit deletes it after this
    self->Hide();
}

Eina_Bool PadApplication::s_OnIdle(void* data)
{
    static_cast<void>(static_cast<PadApplication*>(data)->m_idle.release()); // the toolkit deletes it after this
    elm_exit();
    return ECORE_CALLBACK_CANCEL;
}

} // namespace veskar
