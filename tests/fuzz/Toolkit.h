/** The toolkit, drawing into memory, for the targets that need it. */
#pragma once

#include <cstdlib>

#include <Efreet.h>
#include <Elementary.h>

inline bool StartToolkit()
{
    for (const char* variable : {"ELM_DISPLAY", "ELM_ENGINE"})
    {
        setenv(variable, "buffer", 1);
    }
    setenv("ELM_SCALE", "1.0", 1);
    setenv("EINA_LOG_LEVEL", "0", 1);
    setenv("ECORE_EVAS_FORCE_SYNC_RENDER", "1", 1);
    eina_init();
    eina_log_threads_enable();
    efreet_cache_disable();
    return elm_init(0, nullptr) > 0;
}
