/** The toolkit, drawing into memory. */
#pragma once

#include <cstdlib>

#include <Efreet.h>
#include <Elementary.h>

inline bool StartToolkit()
{
    setenv("ELM_DISPLAY", "buffer", 1);
    setenv("ELM_ENGINE", "buffer", 1);
    setenv("ELM_SCALE", "1.0", 1);
    setenv("VESKAR_LAYOUT", BUILT_LAYOUT, 1);
    setenv("ECORE_EVAS_FORCE_SYNC_RENDER", "1", 1);
    eina_init();
    eina_log_threads_enable();
    efreet_cache_disable();
    return elm_init(0, nullptr) > 0;
}
