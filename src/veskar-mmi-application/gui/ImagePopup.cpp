#include "ImagePopup.h"

#include "EflGuard.h"
#include "Log.h"
#include "ScaledSize.h"

namespace VESKAR_APP
{

ImagePopup::ImagePopup(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
                       const std::string& imageLocation, int width, int height, const std::string& bottom,
                       const std::vector<std::string>& buttons, bool noClose, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, buttons, LARGE_POPUP_STYLE, true), m_image(nullptr),
      m_imageLocation(imageLocation), m_width(width), m_height(height), m_noClose(noClose)
{
    t_SetTexts(title, sub, bottom);
}

Evas_Object* ImagePopup::m_CreateWindowContent(Evas_Object* layout, Evas_Object* /*box*/)
{
    LOG_ENTRY();
    LOG_DEBUG("Loading the image file: " << m_imageLocation << " width:" << m_width << " height:" << m_height);
    m_image = EFL_GUARD(elm_image_add, layout);
    if (!EFL_GUARD(elm_image_file_set, m_image, m_imageLocation.c_str(), nullptr))
    {
        LOG_ERROR("Loading the image file has failed :" << m_imageLocation);
    }
    const int width = ScaledSize(m_width);
    const int height = ScaledSize(m_height);
    EFL_GUARD(evas_object_size_hint_min_set, m_image, width, height);
    EFL_GUARD(evas_object_size_hint_weight_set, m_image, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    EFL_GUARD(evas_object_size_hint_align_set, m_image, 0.5, 0);
    EFL_GUARD(evas_object_show, m_image);
    t_SetTTSText("", nullptr);
    return m_image;
}

void ImagePopup::t_OnKeyPressed(void* eventInfo)
{
    LOG_ENTRY();
    if (!m_noClose)
    {
        BaseDisplay::t_OnKeyPressed(eventInfo);
    }
}

} // namespace VESKAR_APP
