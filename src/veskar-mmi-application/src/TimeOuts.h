#pragma once

namespace VESKAR_APP
{

// A test build may set shorter times; a TV uses these.
#ifndef VESKAR_VISIBLE_TIMEOUT_MS
#define VESKAR_VISIBLE_TIMEOUT_MS 30000
#endif
#ifndef VESKAR_IDLE_TIMEOUT_MS
#define VESKAR_IDLE_TIMEOUT_MS 2000
#endif

/** How long a screen stays without a key, in milliseconds. */
constexpr unsigned int VISIBLE_TIMEOUT = VESKAR_VISIBLE_TIMEOUT_MS;

/** How long the application stays after a pause without a new screen, in milliseconds. */
constexpr unsigned int IDLE_TIMEOUT = VESKAR_IDLE_TIMEOUT_MS;

} // namespace VESKAR_APP
