#include "LoadingPopup.h"

#include "EflGuard.h"
#include "Log.h"

namespace VESKAR_APP
{

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value as in the window manager's operation
LoadingPopup::LoadingPopup(IUserInteraction& userInteraction, std::string text, const std::vector<std::string>& buttons,
                           int parameter, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, buttons, POPUP_STYLE, false), m_progressBar(nullptr),
      m_parameter(parameter)
{
    t_SetTitle(text);
}

Evas_Object* LoadingPopup::m_CreateWindowContent(Evas_Object* layout, Evas_Object* /*box*/)
{
    LOG_ENTRY();
    {
        const MainLoopSection section;
        m_progressBar = elm_progressbar_add(layout);
        elm_object_style_set(m_progressBar, "C_Loading_WhiteLarge");
        evas_object_size_hint_weight_set(m_progressBar, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
        evas_object_size_hint_align_set(m_progressBar, EVAS_HINT_FILL, EVAS_HINT_FILL);
        elm_progressbar_pulse_set(m_progressBar, EINA_TRUE);
        elm_progressbar_pulse(m_progressBar, EINA_TRUE);
    }
    t_SetTTSText("", nullptr);
    return m_progressBar;
}

bool LoadingPopup::t_Show()
{
    {
        const MainLoopSection section;
        elm_progressbar_pulse_set(m_progressBar, EINA_TRUE);
        elm_progressbar_pulse(m_progressBar, EINA_TRUE);
    }
    return BaseDisplay::t_Show();
}

bool LoadingPopup::t_Hide()
{
    {
        const MainLoopSection section;
        elm_progressbar_pulse(m_progressBar, EINA_FALSE);
        elm_progressbar_pulse_set(m_progressBar, EINA_FALSE);
    }
    return BaseDisplay::t_Hide();
}

void LoadingPopup::t_OnKeyPressed(void* /*eventInfo*/) {}

} // namespace VESKAR_APP
