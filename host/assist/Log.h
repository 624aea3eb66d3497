/** The assistant's own lines in the platform's log. */
#pragma once

#include "dlog.h"

#define ASSIST_LOG(priority, ...) __dlog_print(LOG_ID_MAIN, priority, "VESKAR-ASSIST", __VA_ARGS__)
#define ASSIST_DEBUG(...) ASSIST_LOG(DLOG_DEBUG, __VA_ARGS__)
#define ASSIST_INFO(...) ASSIST_LOG(DLOG_INFO, __VA_ARGS__)
#define ASSIST_WARN(...) ASSIST_LOG(DLOG_WARN, __VA_ARGS__)
