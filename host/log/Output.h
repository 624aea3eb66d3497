/** Where the log's lines go: standard error, or the systemd journal. */
#pragma once

#include <string>

namespace veskar
{

struct LogLine
{
    int priority;
    std::string tag;
    /** Without line breaks. */
    std::string text;

    bool operator==(const LogLine& other) const
    {
        return priority == other.priority && tag == other.tag && text == other.text;
    }
};

enum class LogTarget
{
    StandardError,
    Journal
};

/** Returns the number of bytes written, or a negative errno. Not thread-safe. */
int WriteLine(LogTarget target, const LogLine& line);

/**
 * Writes to standard error that the line has come so many more times. For a process that crashes: allocates nothing and
 * takes no lock.
 */
void WriteLastRepeats(const LogLine& line, unsigned repeats);

} // namespace veskar
