#include "ProgressFeed.h"

#include <cerrno>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <regex>
#include <system_error>
#include <unistd.h>

namespace veskar
{
namespace
{
constexpr auto PERCENT = "ui_param_percent";
constexpr auto TEXT = "ui_param_txt";

int Open(const std::string& file)
{
    const int opened = file == "-" ? dup(STDIN_FILENO) : open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (opened < 0)
    {
        throw std::system_error(errno, std::generic_category(), file);
    }
    return opened;
}

bool CanRead(int descriptor)
{
    pollfd readable{descriptor, POLLIN, 0};
    return poll(&readable, 1, 0) > 0;
}

void Apply(const std::string& line, Request& progress)
{
    static const std::regex number(R"(\s*(100|\d?\d)(\.\d*)?%?\s*)");
    static const std::regex text(R"(\s*#\s?(.*))");
    std::smatch found;
    if (std::regex_match(line, found, number))
    {
        progress.Set(PERCENT, found.str(1));
    }
    else if (std::regex_match(line, found, text))
    {
        progress.Set(TEXT, found.str(1));
    }
    else
    {
        std::cerr << "veskar-mw: \"" << line << "\" is neither a percentage nor \"# text\"\n";
    }
}

} // namespace

ProgressFeed::ProgressFeed(const std::string& file) : m_file(Open(file)) {}

bool ProgressFeed::Advance(Request& progress)
{
    if (HasEnded() || !CanRead(m_file.Get()))
    {
        return false;
    }
    char block[4096];
    const ssize_t count = read(m_file.Get(), block, sizeof block);
    if (count > 0)
    {
        m_received.append(block, static_cast<std::size_t>(count));
    }
    else
    {
        m_file.Close();
        // The last line may lack its end.
        m_received += m_received.empty() ? "" : "\n";
    }
    bool any = false;
    for (std::size_t end; (end = m_received.find('\n')) != std::string::npos; any = true)
    {
        Apply(m_received.substr(0, end), progress);
        m_received.erase(0, end + 1);
    }
    return any;
}

} // namespace veskar
