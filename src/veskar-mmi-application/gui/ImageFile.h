#pragma once

#include "EflGuard.h"

#include <string>

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * Shows a file in an image widget, in the next picture that is drawn: left alone, the toolkit decodes it on a thread of
 * its own and shows the file before it until then. A file of more pixels than a screen has is decoded there all the
 * same, so that no key waits for it; nothing is shown meanwhile. False where there is no image in the file.
 */
inline bool SetImageFile(Evas_Object* image, const std::string& path)
{
    constexpr int SCREEN_PIXELS = 1920 * 1080;
    const MainLoopSection section;
    elm_image_preload_disabled_set(image, EINA_TRUE);
    const bool set = elm_image_file_set(image, path.c_str(), nullptr);
    int width = 0;
    int height = 0;
    elm_image_object_size_get(image, &width, &height);
    if (width > 0 && height > SCREEN_PIXELS / width)
    {
        elm_image_preload_disabled_set(image, EINA_FALSE);
    }
    return set;
}

} // namespace VESKAR_APP
