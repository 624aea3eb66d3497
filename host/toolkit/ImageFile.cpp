// An image is in the next picture that is drawn. Otherwise the toolkit decodes it on a thread of its own and shows the
// file before it until then. A file of more pixels than a screen has is still decoded there, so that no key waits for
// it; nothing is shown meanwhile.

#include <Elementary.h>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Eina_Bool __real_elm_image_file_set(Evas_Object* image, const char* file, const char* group);

    Eina_Bool __wrap_elm_image_file_set(Evas_Object* image, const char* file, const char* group)
    {
        constexpr int SCREEN_PIXELS = 1920 * 1080;
        elm_image_preload_disabled_set(image, EINA_TRUE);
        const Eina_Bool set = __real_elm_image_file_set(image, file, group);
        int width = 0;
        int height = 0;
        elm_image_object_size_get(image, &width, &height);
        if (width > 0 && height > SCREEN_PIXELS / width)
        {
            elm_image_preload_disabled_set(image, EINA_FALSE);
        }
        return set;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
