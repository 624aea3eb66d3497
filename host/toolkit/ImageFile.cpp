// What may be shown as an image, and when it is there.

#include <Elementary.h>

#include <sys/stat.h>

namespace
{

constexpr int SCREEN_PIXELS = 1920 * 1080;
constexpr int MOST_PIXELS = 64 * 1024 * 1024; // 256 MB of memory once they are decoded

/** The toolkit would wait for the other end of a pipe, read a device for ever and fetch from the network. */
bool IsRegularFile(const char* path)
{
    struct stat status = {};
    return path != nullptr && stat(path, &status) == 0 && S_ISREG(status.st_mode);
}

bool HasMorePixels(const Evas_Object* image, int limit)
{
    int width = 0;
    int height = 0;
    elm_image_object_size_get(image, &width, &height);
    return width > 0 && height > limit / width;
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Eina_Bool __real_elm_image_file_set(Evas_Object* image, const char* file, const char* group);

    Eina_Bool __wrap_elm_image_file_set(Evas_Object* image, const char* file, const char* group)
    {
        if (!IsRegularFile(file))
        {
            __real_elm_image_file_set(image, nullptr, nullptr);
            return EINA_FALSE;
        }
        // Otherwise the toolkit decodes on a thread of its own and shows the file before it until then.
        elm_image_preload_disabled_set(image, EINA_TRUE);
        const Eina_Bool set = __real_elm_image_file_set(image, file, group);
        // Only the file's head is read yet.
        if (HasMorePixels(image, MOST_PIXELS))
        {
            __real_elm_image_file_set(image, nullptr, nullptr);
            return EINA_FALSE;
        }
        if (HasMorePixels(image, SCREEN_PIXELS))
        {
            // It is decoded on the thread, so that no key waits for it; nothing is shown meanwhile.
            elm_image_preload_disabled_set(image, EINA_FALSE);
        }
        return set;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
