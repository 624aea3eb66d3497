/** Lines that move a progress on, as other dialogue programs read them. */
#pragma once

#include "FileDescriptor.h"
#include "Request.h"

#include <string>

namespace veskar
{
class ProgressFeed
{
public:
    /** "-" is standard input. Throws std::system_error when the file cannot be opened. */
    explicit ProgressFeed(const std::string& file);

    /** To wait on; -1 when there are no more lines. */
    int Descriptor() const { return m_file.Get(); }
    bool HasEnded() const { return m_file.Get() < 0; }

    /**
     * Waits for nothing. Each line that is there changes `progress`: a number ("10" or "10%", up to 100) its
     * percentage, "# text" its text. Another line is complained of. Returns whether there was any line.
     */
    bool Advance(Request& progress);

private:
    FileDescriptor m_file;
    std::string m_received;
};

} // namespace veskar
