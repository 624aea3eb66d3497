/** The direction of the user interface. */
#pragma once

#include <ui_orientation.h>

namespace VESKAR_APP
{

inline bool IsRightToLeft()
{
    constexpr int RIGHT_TO_LEFT = 1;
    return ua_UI_orientation_get() == RIGHT_TO_LEFT;
}

} // namespace VESKAR_APP
