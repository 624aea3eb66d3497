#include <dlog.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include <unistd.h>

#include "Output.h"
#include "SecretMask.h"

namespace
{

using veskar::LogLine;
using veskar::LogTarget;

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
    const std::pair<std::string_view, int> names[] = {
        {"debug", DLOG_DEBUG}, {"info", DLOG_INFO}, {"warn", DLOG_WARN}, {"error", DLOG_ERROR}};
    for (const auto& [name, priority] : names)
    {
        if (wanted == name)
        {
            return priority;
        }
    }
    fprintf(stderr, "VESKAR_LOG=%s: not one of debug, info, warn, error; info is used\n", wanted);
    return DLOG_INFO;
}

/** The log's whole state. Equal lines that follow one another become one line and a count. */
struct LogState
{
    const int lowestPriority = LowestPriority();
    const bool showSecrets = EnvironmentIs("VESKAR_LOG_SECRETS", "1");
    const LogTarget target = EnvironmentIs("VESKAR_LOG_TO", "journal") ? LogTarget::Journal : LogTarget::StandardError;
    // Readers of the journal colour by priority themselves, and a file is searched and compared.
    const bool isColoured = target == LogTarget::StandardError && isatty(STDERR_FILENO) == 1;

    /**
     * Protects what follows, and the output: a write longer than a pipe takes at once may be split, and another
     * thread's line must not come between.
     */
    std::mutex writing;
    LogLine last = {};
    unsigned repeats = 0;
    bool folds = true;
};

LogState& State();

/** The lock must be held. */
void WriteRepeats(LogState& state)
{
    if (state.repeats > 1)
    {
        state.last.text += " (" + std::to_string(state.repeats) + " more times)";
    }
    if (state.repeats > 0)
    {
        veskar::WriteLine(state.target, state.last);
    }
    state.repeats = 0;
}

/** From here on each line is written: nobody would write a count any more. */
void StopFolding()
{
    auto& state = State();
    const std::lock_guard<std::mutex> lock(state.writing);
    WriteRepeats(state);
    state.folds = false;
}

void OnCrash(int signal)
{
    auto& state = State();
    if (state.writing.try_lock() && state.repeats > 0)
    {
        veskar::WriteLastRepeats(state.last, state.repeats);
    }
    raise(signal); // ends the process when this function returns
}

/** Leaves a signal alone that somebody else handles, such as a sanitizer. */
void WatchForCrashes()
{
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT, SIGFPE, SIGILL})
    {
        struct sigaction action = {};
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL)
        {
            action.sa_handler = OnCrash;
            action.sa_flags = SA_RESETHAND;
            sigaction(signal, &action, nullptr);
        }
    }
}

/** Made at the first line and never destroyed: threads still log while the process exits. */
LogState& State()
{
    static auto* state = []
    {
        atexit(StopFolding);
        WatchForCrashes();
        return new LogState;
    }();
    return *state;
}

/** A text with line breaks stays one line, so that it cannot be taken for two. */
void EscapeLineBreaks(std::string& text)
{
    for (auto at = text.find_first_of("\r\n"); at != std::string::npos; at = text.find_first_of("\r\n", at + 2))
    {
        text.replace(at, 1, text[at] == '\n' ? "\\n" : "\\r");
    }
}

void RemoveColours(std::string& text)
{
    for (auto at = text.find("\x1b["); at != std::string::npos; at = text.find("\x1b[", at))
    {
        const auto end = text.find('m', at);
        text.erase(at, end == std::string::npos ? end : end - at + 1);
    }
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

int Print(LogState& state, LogLine line)
{
    if (!state.showSecrets)
    {
        veskar::MaskTypedDigits(line.text);
    }
    EscapeLineBreaks(line.text);
    if (!state.isColoured)
    {
        RemoveColours(line.text);
    }
    const std::lock_guard<std::mutex> lock(state.writing);
    if (state.folds && line == state.last)
    {
        ++state.repeats;
        return 0;
    }
    WriteRepeats(state);
    state.last = std::move(line);
    return veskar::WriteLine(state.target, state.last);
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
    const int result = Print(state, {priority, tag != nullptr ? tag : "", Format(format, arguments)});
    va_end(arguments);
    errno = savedErrno;
    return result;
}
