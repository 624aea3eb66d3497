#include "TextStyle.h"

#include "EflGuard.h"
#include "Log.h"
#include "ScaledSize.h"

#include <vconf.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* ENLARGED_SETTING = "db/menu/system/accessibility/focuszoom";
constexpr const char* HIGH_CONTRAST_SETTING = "db/menu/system/accessibility/highcontrast";

int ReadSetting(const char* key)
{
    int value = 0;
    if (vconf_get_int(key, &value) != 0)
    {
        LOG_ERROR("Failed to read " << key << ", set to default value 0");
    }
    return value;
}

} // namespace

bool IsTextEnlarged()
{
    LOG_ENTRY();
    const int value = ReadSetting(ENLARGED_SETTING);
    LOG_DEBUG("Large text mode : " << value);
    return value != 0;
}

bool IsHighContrast()
{
    LOG_ENTRY();
    const int value = ReadSetting(HIGH_CONTRAST_SETTING);
    LOG_DEBUG("High contrast mode : " << value);
    return value != 0;
}

int TextFontSize()
{
    return ScaledSize(IsTextEnlarged() ? 31 : 25);
}

int PageFontSize()
{
    return ScaledSize(IsTextEnlarged() ? 39 : 33);
}

const char* TextColour()
{
    // The dimmer colour is the one of high contrast, by design.
    return IsHighContrast() ? "#7F7F7F" : "#FFFFFF";
}

void PaintLabelWhite(Evas_Object* label)
{
    IsHighContrast();
    EFL_GUARD(evas_object_color_set, label, 255, 255, 255, 255);
}

} // namespace VESKAR_APP
