#include "Process.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <utility>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr std::chrono::milliseconds POLL_INTERVAL{5};

[[noreturn]] void Become(const std::vector<std::string>& command, int output)
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
    {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    dup2(output, STDOUT_FILENO);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

} // namespace

bool WaitUntil(const std::function<bool()>& predicate, std::chrono::milliseconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!predicate())
    {
        if (std::chrono::steady_clock::now() >= deadline)
        {
            return false;
        }
        std::this_thread::sleep_for(POLL_INTERVAL);
    }
    return true;
}

Process::Process(const std::vector<std::string>& command) : m_output(memfd_create("output", MFD_CLOEXEC))
{
    m_pid = fork();
    if (m_pid < 0 || m_output < 0)
    {
        throw std::runtime_error("cannot start " + command.at(0));
    }
    if (m_pid == 0)
    {
        Become(command, m_output);
    }
}

Process::Process(Process&& other) noexcept
    : m_pid(std::exchange(other.m_pid, -1)), m_output(std::exchange(other.m_output, -1)), m_status(other.m_status)
{
}

Process::~Process()
{
    if (m_pid > 0 && !HasEnded())
    {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
    }
    if (m_output >= 0)
    {
        close(m_output);
    }
}

bool Process::HasEnded()
{
    int status = 0;
    if (m_status < 0 && waitpid(m_pid, &status, WNOHANG) == m_pid)
    {
        m_status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    return m_status >= 0;
}

int Process::Status(std::chrono::milliseconds limit)
{
    return WaitUntil([this] { return HasEnded(); }, limit) ? m_status : -1;
}

std::string Process::Output() const
{
    std::string text(static_cast<std::size_t>(lseek(m_output, 0, SEEK_END)), '\0');
    const ssize_t size = pread(m_output, text.data(), text.size(), 0);
    text.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return text;
}

std::string RunCommand(const std::vector<std::string>& command)
{
    Process process(command);
    EXPECT_EQ(process.Status(), 0) << command.at(0) << " " << (command.size() > 1 ? command[1] : "");
    return process.Output();
}
