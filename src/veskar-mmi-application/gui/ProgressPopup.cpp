#include "ProgressPopup.h"

#include "EflGuard.h"
#include "Log.h"

namespace VESKAR_APP
{

ProgressPopup::ProgressPopup(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
                             const std::string& buttonLabel, unsigned char percent, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {buttonLabel}, POPUP_STYLE, false), m_progressBar(nullptr),
      m_percent(percent)
{
    LOG_ENTRY_INFO();
    t_SetTitle(title);
    t_SetSubtitle(sub);
}

bool ProgressPopup::Update(const std::string& title, const std::string& sub, const std::string& buttonLabel,
                           unsigned char percent)
{
    LOG_ENTRY_INFO();
    if (t_popup == nullptr)
    {
        LOG_ERROR("m_popup null");
        return false;
    }
    t_SetTitle(title);
    t_SetSubtitle(sub);
    EFL_GUARD(elm_object_part_text_set, t_popup, "title,text", t_title.c_str());
    m_percent = percent;
    EFL_GUARD(elm_progressbar_value_set, m_progressBar, m_percent / 100.0);
    t_UpdateButtonLabels({buttonLabel});
    return true;
}

Evas_Object* ProgressPopup::m_CreateWindowContent(Evas_Object* layout, Evas_Object* /*box*/)
{
    LOG_ENTRY();
    {
        const MainLoopSection section;
        elm_win_borderless_set(t_mainWindow, EINA_TRUE);
        elm_win_focus_highlight_style_set(t_mainWindow, "none");

        m_progressBar = elm_progressbar_add(layout);
        elm_progressbar_horizontal_set(m_progressBar, EINA_TRUE);
        evas_object_size_hint_align_set(m_progressBar, EVAS_HINT_FILL, EVAS_HINT_FILL);
        evas_object_size_hint_weight_set(m_progressBar, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
        elm_object_style_set(m_progressBar, "C_ProgressCircle_WhiteLarge");
        elm_progressbar_value_set(m_progressBar, m_percent / 100.0);
        elm_progressbar_unit_format_set(m_progressBar, "%1.0f %%");
        elm_progressbar_span_size_set(m_progressBar, 100);
        elm_progressbar_pulse_set(m_progressBar, EINA_FALSE);
        elm_progressbar_pulse(m_progressBar, EINA_FALSE);
        evas_object_move(m_progressBar, 0, 5);
    }
    t_SetTTSText("", nullptr);
    EFL_GUARD(evas_object_show, m_progressBar);
    return m_progressBar;
}

void ProgressPopup::t_OnKeyPressed(void* /*eventInfo*/) {}

} // namespace VESKAR_APP
