/** The process of the number pad: the pad while it is shown, and the end of the process when it is not. */
#pragma once

#include "FreeWith.h"
#include "NumberPad.h"
#include "PadWindow.h"

#include <Ecore.h>
#include <memory>
#include <optional>

namespace veskar
{

/** Call everything on the main thread, while the toolkit is initialised; it may be constructed and destroyed outside.
 */
class PadApplication
{
public:
    PadApplication() = default;

    PadApplication(const PadApplication&) = delete;
    PadApplication& operator=(const PadApplication&) = delete;

    /** Comes first. The process ends soon after this unless the pad is shown. */
    void Create();

    /** Does nothing when the pad is shown already. */
    void Show(bool withBackSpace);

    /** Hides the pad. The process ends soon after this unless the pad is shown. */
    void Hide();

    /** Hides the pad, and releases what the toolkit does not release itself. */
    void Terminate();

private:
    void m_EndSoon();
    void m_HideSoon();
    static void s_HideNow(void* data);
    static Eina_Bool s_OnIdle(void* data);

    std::optional<PadWindow> m_window;
    std::optional<NumberPad> m_pad;
    std::unique_ptr<Ecore_Timer, FreeWith<ecore_timer_del>> m_idle;
    std::unique_ptr<Ecore_Job, FreeWith<ecore_job_del>> m_hiding;
};

} // namespace veskar
