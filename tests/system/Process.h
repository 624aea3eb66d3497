#pragma once

#include "FileDescriptor.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <csignal>
#include <sys/types.h>

/** How long anything may take before a test gives up on it; far above what a loaded machine needs. */
constexpr std::chrono::seconds PATIENCE{20};

using Words = std::vector<std::string>;

/** The words of both. */
Words operator+(Words first, const Words& second);

/** The value of an environment variable; empty when there is none. */
std::string Environment(const char* name);

/** Repeats the condition until it is true; false when the time is over. */
bool WaitUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit = PATIENCE);

/** A command with its standard output kept; standard error goes to the test's own. */
class Process
{
public:
    explicit Process(const Words& command);
    /** Ends the command if it still runs. */
    ~Process();

    Process(Process&& other) noexcept;
    Process& operator=(Process&&) = delete;

    void Signal(int number) const { kill(m_pid, number); }
    bool HasEnded();

    /** The exit status; -1 when the command did not end within the time. */
    int Status(std::chrono::milliseconds limit = PATIENCE);

    /** What was printed so far. */
    std::string Output() const;
    /** Whether this is printed within the time. */
    bool Says(const std::string& text) const;

private:
    pid_t m_pid;
    veskar::FileDescriptor m_output;
    int m_status = -1;
};

/** Runs a command to its end and gives back what it printed; a status other than 0 fails the test. */
std::string RunCommand(const Words& command);
