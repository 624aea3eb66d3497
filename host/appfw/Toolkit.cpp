#include "Toolkit.h"

#include <cstdlib>
#include <filesystem>

#include <Efreet.h>
#include <Elementary.h>

#include "Compositor.h"
#include "Log.h"
#include "SharedFile.h"

namespace veskar
{
namespace
{

/** Every theme for the TV has it. */
constexpr const char* GROUP_OF_THE_THEME = "elm/popup/base/C_PopupBasic_WhiteBottom";

constexpr int MOST_WAITING_TO_BE_FREED = 500;

} // namespace

void PrepareToolkit()
{
    // The toolkit's threads write to its log while the main thread registers log domains. Without locks that crashes.
    eina_init();
    eina_log_threads_enable();
    // What the toolkit has freed waits in a queue until the main loop is idle, which it is not while a long list
    // measures its rows: 40 MiB, and what is allocated meanwhile lies between.
    eina_freeq_count_max_set(eina_freeq_main_get(), MOST_WAITING_TO_BE_FREED);
    // Menus and icons of a desktop, and news about batteries and the time zone: a TV's dialogues use none of them. They
    // cost a daemon, a thread and a third of the start.
    efreet_cache_disable();
    ecore_app_no_system_modules();
}

std::string StartToolkit(int argc, char** argv)
{
    // The toolkit starts without a compositor too, and then shows nothing.
    if (auto missing = MissingCompositor(); !missing.empty())
    {
        return missing;
    }
    // The toolkit waits 0.2 s at most for its drawing thread before it frees a window's memory. On a busy machine that
    // is too short, and the thread then crashes. Without that thread each picture is drawn on the main loop.
    setenv("ECORE_EVAS_FORCE_SYNC_RENDER", "1", 0);
    // Of a picture that is drawn stretched, the toolkit keeps a stretched copy. Those of the scrim and the panel take
    // 13 MiB, and drawing them is no faster with a copy. The number is pixels: buttons and rows keep theirs.
    setenv("EVAS_SCALECACHE_MAX_DIMENSION", "1280", 0);
    return elm_init(argc, argv) > 0 ? "" : "the toolkit cannot be initialised";
}

void LoadTheme()
{
    const std::string file = SharedFile("VESKAR_THEME", "veskar-theme.edj");
    const char* theme = file.c_str();
    if (!edje_file_group_exists(theme, GROUP_OF_THE_THEME))
    {
        std::error_code error;
        const char* why = std::filesystem::exists(theme, error) ? "damaged or no theme" : "missing";
        APPFW_ERROR("the TV's theme %s is %s: the screens take the toolkit's own look", theme, why);
        return;
    }
    // An overlay, not an extension, because it also replaces styles that the toolkit's theme has.
    elm_theme_overlay_add(nullptr, theme);
}

} // namespace veskar
