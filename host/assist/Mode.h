#pragma once

#include "vconf.h"

namespace veskar
{

/** Whether a setting that is a switch is on; unset is off. */
inline bool IsOn(const char* key)
{
    int value = 0;
    return vconf_get_int(key, &value) == 0 && value != 0;
}

} // namespace veskar
