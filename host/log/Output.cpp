#include "Output.h"

#include <cerrno>
#include <charconv>
#include <string_view>

#include <dlog.h>
#include <sys/uio.h>
#include <syslog.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

namespace veskar
{
namespace
{

struct Level
{
    int priority;
    char letter;
    int journalPriority;
};

constexpr Level LEVELS[] = {
    {DLOG_DEBUG, 'D', LOG_DEBUG},
    {DLOG_INFO, 'I', LOG_INFO},
    {DLOG_WARN, 'W', LOG_WARNING},
    {DLOG_ERROR, 'E', LOG_ERR},
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

int WriteToJournal(const LogLine& line)
{
    const int result = sd_journal_send("PRIORITY=%d", LevelOf(line.priority).journalPriority, "SYSLOG_IDENTIFIER=%s",
                                       line.tag.c_str(), "MESSAGE=%s", line.text.c_str(), nullptr);
    return result < 0 ? result : static_cast<int>(line.text.size());
}

int WriteToStandardError(const std::string& bytes)
{
    size_t written = 0;
    while (written < bytes.size())
    {
        const ssize_t count = write(STDERR_FILENO, bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno == EINTR)
        {
            continue;
        }
        if (count < 0)
        {
            return -errno;
        }
        written += static_cast<size_t>(count);
    }
    return static_cast<int>(written);
}

iovec Piece(std::string_view text)
{
    return {const_cast<char*>(text.data()), text.size()};
}

} // namespace

int WriteLine(LogTarget target, const LogLine& line)
{
    if (target == LogTarget::Journal)
    {
        return WriteToJournal(line);
    }
    return WriteToStandardError(line.tag + " " + LevelOf(line.priority).letter + " " + line.text + "\n");
}

void WriteLastRepeats(const LogLine& line, unsigned repeats)
{
    const char level[] = {' ', LevelOf(line.priority).letter, ' '};
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, repeats).ptr;
    const iovec pieces[] = {Piece(line.tag),
                            Piece({level, sizeof level}),
                            Piece(line.text),
                            Piece(" ("),
                            Piece({digits, static_cast<size_t>(end - digits)}),
                            Piece(" more times)\n")};
    // Nothing is left to be done when it fails.
    [[maybe_unused]] const ssize_t written = writev(STDERR_FILENO, pieces, std::size(pieces));
}

} // namespace veskar
