/** Feature flags of the TV model. */
#pragma once

#include <stdbool.h>

#ifdef __cplusplus
extern "C"
{
#endif

    /** 0 when read, -22 for an unknown flag; the output is not touched then. */
    int system_info_get_custom_bool(const char* key, bool* value);

#ifdef __cplusplus
}
#endif
