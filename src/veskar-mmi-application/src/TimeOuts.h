/** The time-outs, in milliseconds. They have a source of their own, so that a test program can link shorter ones. */
#pragma once

namespace VESKAR_APP
{

/** How long a screen stays without a key. */
extern const unsigned int VISIBLE_TIMEOUT;

/** How long the application stays after a pause without a new screen. */
extern const unsigned int IDLE_TIMEOUT;

} // namespace VESKAR_APP
