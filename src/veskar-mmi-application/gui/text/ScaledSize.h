#pragma once

#include "EflGuard.h"

#include <Elementary.h>

namespace VESKAR_APP
{

/** The pixels on this screen for a size in design pixels. */
inline int ScaledSize(double designSize)
{
    const MainLoopSection section;
    // Rounded in this way on a TV too; a negative size of a request would round otherwise with another function.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return static_cast<int>(elm_config_scale_get() * designSize / elm_app_base_scale_get() + 0.5);
}

} // namespace VESKAR_APP
