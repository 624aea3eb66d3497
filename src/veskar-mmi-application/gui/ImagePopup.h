#pragma once

#include "BaseDisplay.h"

namespace VESKAR_APP
{

/** One image file with texts and buttons. */
class ImagePopup : public BaseDisplay
{
public:
    /** `width` and `height` are design pixels; with `noClose` every key is ignored, but the buttons answer. */
    ImagePopup(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
               const std::string& imageLocation, int width, int height, const std::string& bottom,
               const std::vector<std::string>& buttons, bool noClose, Evas_Object* mainWindow);
    ~ImagePopup() override = default;

protected:
    void t_OnKeyPressed(void* eventInfo) override;
    Evas_Object* m_CreateWindowContent(Evas_Object* layout, Evas_Object* box) override;

private:
    Evas_Object* m_image;
    std::string m_imageLocation;
    int m_width;
    int m_height;
    bool m_noClose;
};

} // namespace VESKAR_APP
