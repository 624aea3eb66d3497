/** The number pad's own lines in the platform's log. Digits never stand there. */
#pragma once

#include <dlog.h>

#define NUMPAD_LOG(priority, ...) __dlog_print(LOG_ID_MAIN, priority, "VESKAR-NUMPAD", __VA_ARGS__)
#define NUMPAD_INFO(...) NUMPAD_LOG(DLOG_INFO, __VA_ARGS__)
#define NUMPAD_WARN(...) NUMPAD_LOG(DLOG_WARN, __VA_ARGS__)
#define NUMPAD_ERROR(...) NUMPAD_LOG(DLOG_ERROR, __VA_ARGS__)
