#pragma once

#include "EflGuard.h"

#include <Elementary.h>

namespace VESKAR_APP
{

/** The pixels on this screen for a size in design pixels. */
inline int ScaledSize(double designSize)
{
    const MainLoopSection section;
    return ELM_SCALE_SIZE(designSize);
}

} // namespace VESKAR_APP
