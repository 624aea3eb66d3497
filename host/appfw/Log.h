/** The framework's own lines in the platform's log. */
#pragma once

#include <dlog.h>

#define APPFW_LOG(priority, ...) __dlog_print(LOG_ID_MAIN, priority, "VESKAR-APPFW", __VA_ARGS__)
#define APPFW_INFO(...) APPFW_LOG(DLOG_INFO, __VA_ARGS__)
#define APPFW_WARN(...) APPFW_LOG(DLOG_WARN, __VA_ARGS__)
#define APPFW_ERROR(...) APPFW_LOG(DLOG_ERROR, __VA_ARGS__)
