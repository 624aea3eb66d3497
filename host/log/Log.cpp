#include <dlog.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <syslog.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

#include "SecretMask.h"

namespace
{

struct Level
{
    int priority;
    const char* name;
    char letter;
    int journalPriority;
};

constexpr Level LEVELS[] = {
    {DLOG_DEBUG, "debug", 'D', LOG_DEBUG},
    {DLOG_INFO, "info", 'I', LOG_INFO},
    {DLOG_WARN, "warn", 'W', LOG_WARNING},
    {DLOG_ERROR, "error", 'E', LOG_ERR},
};

/** Priorities outside the four count as the nearest of them. */
const Level& LevelOf(int priority)
{
    const Level* found = &LEVELS[0];
    for (const auto& level : LEVELS)
    {
        if (level.priority <= priority)
        {
            found = &level;
        }
    }
    return *found;
}

bool EnvironmentIs(const char* name, std::string_view value)
{
    const char* set = getenv(name);
    return set != nullptr && set == value;
}

int LowestPriority()
{
    const char* wanted = getenv("VESKAR_LOG");
    if (wanted == nullptr || *wanted == '\0')
    {
        return DLOG_INFO;
    }
    for (const auto& level : LEVELS)
    {
        if (std::string_view(wanted) == level.name)
        {
            return level.priority;
        }
    }
    fprintf(stderr, "VESKAR_LOG=%s: not one of debug, info, warn, error; info is used\n", wanted);
    return DLOG_INFO;
}

/**
 * The log's whole state, made at the first line. Threads still log while the process exits, after static objects have
 * been destroyed, so nothing here may need a destructor.
 */
struct LogState
{
    const int lowestPriority = LowestPriority();
    const bool showSecrets = EnvironmentIs("VESKAR_LOG_SECRETS", "1");
    const bool toJournal = EnvironmentIs("VESKAR_LOG_TO", "journal");
    /** A write longer than a pipe takes at once may be split: this keeps another thread's line out of it. */
    std::mutex writing;
};
static_assert(std::is_trivially_destructible_v<LogState>);

LogState& State()
{
    static LogState state;
    return state;
}

/** A text with line breaks stays one line, so that it cannot be taken for two. */
void EscapeLineBreaks(std::string& text)
{
    for (auto at = text.find_first_of("\r\n"); at != std::string::npos; at = text.find_first_of("\r\n", at + 2))
    {
        text.replace(at, 1, text[at] == '\n' ? "\\n" : "\\r");
    }
}

/** Journal readers colour by priority themselves. */
void StripColours(std::string& text)
{
    for (auto at = text.find("\x1b["); at != std::string::npos; at = text.find("\x1b[", at))
    {
        const auto end = text.find('m', at);
        text.erase(at, end == std::string::npos ? end : end - at + 1);
    }
}

int WriteToJournal(const Level& level, const char* tag, std::string& text)
{
    StripColours(text);
    const int result = sd_journal_send("PRIORITY=%d", level.journalPriority, "SYSLOG_IDENTIFIER=%s", tag, "MESSAGE=%s",
                                       text.c_str(), nullptr);
    return result < 0 ? result : static_cast<int>(text.size());
}

int WriteToStandardError(LogState& state, const std::string& line)
{
    const std::lock_guard<std::mutex> lock(state.writing);
    size_t written = 0;
    while (written < line.size())
    {
        const ssize_t count = write(STDERR_FILENO, line.data() + written, line.size() - written);
        if (count < 0 && errno == EINTR)
        {
            continue;
        }
        if (count < 0)
        {
            return -errno;
        }
        written += count;
    }
    return static_cast<int>(written);
}

/** Straight into the string: a typed digit's copy in some other buffer would outlive its masking. */
std::string Format(const char* format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it does not know a copy of a parameter
    const int length = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string text(static_cast<size_t>(std::max(length, 0)), '\0');
    vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

int Print(LogState& state, int priority, const char* tag, std::string text)
{
    if (!state.showSecrets)
    {
        veskar::MaskTypedDigits(text);
    }
    EscapeLineBreaks(text);
    const auto& level = LevelOf(priority);
    const char* name = tag != nullptr ? tag : "";
    return state.toJournal ? WriteToJournal(level, name, text)
                           : WriteToStandardError(state, std::string(name) + " " + level.letter + " " + text + "\n");
}

} // namespace

int __dlog_print(log_id_t, int priority, const char* tag, const char* format, ...)
{
    auto& state = State();
    if (priority < state.lowestPriority)
    {
        return 0;
    }
    const int savedErrno = errno;
    va_list arguments;
    va_start(arguments, format);
    const int result = Print(state, priority, tag, Format(format, arguments));
    va_end(arguments);
    errno = savedErrno;
    return result;
}
