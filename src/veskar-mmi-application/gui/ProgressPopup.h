#pragma once

#include "BaseDisplay.h"

namespace VESKAR_APP
{

/** A task's percentage in a circle, with one button; updated in place. Keys are ignored; only the button answers. */
class ProgressPopup : public BaseDisplay
{
public:
    /** `percent` is 0 to 100; with an empty `buttonLabel` the button stays hidden. */
    ProgressPopup(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
                  const std::string& buttonLabel, unsigned char percent, Evas_Object* mainWindow);
    ~ProgressPopup() override = default;

    /** Shows new values on a created screen; false, with nothing changed, before Create. */
    bool Update(const std::string& title, const std::string& sub, const std::string& buttonLabel,
                unsigned char percent);

protected:
    void t_OnKeyPressed(void* eventInfo) override;
    Evas_Object* m_CreateWindowContent(Evas_Object* layout, Evas_Object* box) override;

private:
    Evas_Object* m_progressBar;
    unsigned char m_percent;
};

} // namespace VESKAR_APP
