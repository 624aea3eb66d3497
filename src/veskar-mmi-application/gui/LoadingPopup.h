#pragma once

#include "BaseDisplay.h"

namespace VESKAR_APP
{

/** A busy indicator that pulses while the screen is shown. Keys are ignored; only its buttons answer. */
class LoadingPopup : public BaseDisplay
{
public:
    /** `text` is the title; `parameter` is only kept. */
    LoadingPopup(IUserInteraction& userInteraction, std::string text, const std::vector<std::string>& buttons,
                 int parameter, Evas_Object* mainWindow);
    ~LoadingPopup() override = default;

protected:
    bool t_Show() override;
    bool t_Hide() override;
    void t_OnKeyPressed(void* eventInfo) override;
    Evas_Object* m_CreateWindowContent(Evas_Object* layout, Evas_Object* box) override;

private:
    Evas_Object* m_progressBar;
    [[maybe_unused]] int m_parameter;
};

} // namespace VESKAR_APP
