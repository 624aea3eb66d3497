/**
 * The application's log. Each call writes one line to the platform's log: the source file, the function, the line and a
 * text, which is written as to a stream: `LOG_INFO("test case id: " << id)`. Any thread.
 *
 * A text must have no effect of its own, because a build may leave its level out: read a value first, then log it.
 *
 * Levels: debug traces the code (almost every function begins with LOG_ENTRY), info is what happened, warning is a
 * failure without harm to the screen, error is something that was requested and failed.
 */
#pragma once

#include <sstream>

#include <dlog.h>

#define VESKAR_LOG_TAG "VESKAR-APP"
#define VESKAR_LOG_PLAIN "%s: %s(%d) > %s"
#define VESKAR_LOG_GREEN "%s: %s(%d) > \x1b[32m%s\x1b[0m"
#define VESKAR_LOG_YELLOW "%s: %s(%d) > \x1b[33m%s\x1b[0m"
#define VESKAR_LOG_RED "%s: %s(%d) > \x1b[31m%s\x1b[0m"

namespace VESKAR_APP
{

/** What LOG_AT takes, for a level that is not known where the line is written. */
struct LogLevel
{
    int priority;
    const char* format;
};

constexpr LogLevel LOG_LEVEL_DEBUG{DLOG_DEBUG, VESKAR_LOG_PLAIN};
constexpr LogLevel LOG_LEVEL_INFO{DLOG_INFO, VESKAR_LOG_GREEN};
constexpr LogLevel LOG_LEVEL_ERROR{DLOG_ERROR, VESKAR_LOG_RED};

/** The part of a path after its last slash. */
constexpr const char* LogFileName(const char* path)
{
    const char* name = path;
    for (const char* at = path; *at != '\0'; ++at)
    {
        if (*at == '/')
        {
            name = at + 1;
        }
    }
    return name;
}

} // namespace VESKAR_APP

#define VESKAR_LOG_TEXT(priority, format, text)                                                                        \
    __dlog_print(LOG_ID_MAIN, priority, VESKAR_LOG_TAG, format, VESKAR_APP::LogFileName(__FILE__), __func__, __LINE__, \
                 text)

#define VESKAR_LOG_STREAM(priority, format, stream)                                                                    \
    do                                                                                                                 \
    {                                                                                                                  \
        std::ostringstream veskarLogText;                                                                              \
        veskarLogText << stream;                                                                                       \
        VESKAR_LOG_TEXT(priority, format, veskarLogText.str().c_str());                                                \
    } while (false)

#define LOG_DEBUG(stream) VESKAR_LOG_STREAM(DLOG_DEBUG, VESKAR_LOG_PLAIN, stream)
#define LOG_INFO(stream) VESKAR_LOG_STREAM(DLOG_INFO, VESKAR_LOG_GREEN, stream)
#define LOG_WARN(stream) VESKAR_LOG_STREAM(DLOG_WARN, VESKAR_LOG_YELLOW, stream)
#define LOG_ERROR(stream) VESKAR_LOG_STREAM(DLOG_ERROR, VESKAR_LOG_RED, stream)
#define LOG_AT(level, stream) VESKAR_LOG_STREAM((level).priority, (level).format, stream)

/** The trace at the beginning of a function, usually at debug level. */
#define LOG_ENTRY() VESKAR_LOG_TEXT(DLOG_DEBUG, VESKAR_LOG_PLAIN, "")
#define LOG_ENTRY_INFO() VESKAR_LOG_TEXT(DLOG_INFO, VESKAR_LOG_GREEN, "")
#define LOG_ENTRY_ERROR() VESKAR_LOG_TEXT(DLOG_ERROR, VESKAR_LOG_RED, "")
