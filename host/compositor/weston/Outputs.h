/** The TV has one screen. */
#pragma once

#include "Weston.h"

namespace veskar
{

/** Null while the backend has none. */
inline weston_output* FirstOutput(weston_compositor* compositor)
{
    weston_output* output;
    wl_list_for_each(output, &compositor->output_list, link)
    {
        return output;
    }
    return nullptr;
}

} // namespace veskar
