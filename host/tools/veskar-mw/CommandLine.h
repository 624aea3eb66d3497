/** veskar-mw's command line. */
#pragma once

#include "Request.h"

#include <chrono>
#include <variant>

namespace veskar
{
struct Command
{
    Request request;
    std::chrono::microseconds timeout;
    /** False: finished as soon as the application has taken the request. */
    bool wait;
    /** The file with the lines that move a progress on, "-" for standard input; empty without one. */
    std::string percentFrom;
};

/** The command, or the process's exit status where help was asked for or the usage is wrong (said on stderr). */
std::variant<Command, int> ParseCommandLine(int argc, char** argv);

} // namespace veskar
