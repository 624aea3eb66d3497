#include "Process.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <utility>

#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr std::chrono::milliseconds POLL_INTERVAL{5};

} // namespace

Words operator+(Words first, const Words& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

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

Process::Process(const Words& command) : m_pid(-1), m_output(memfd_create("output", MFD_CLOEXEC))
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
    {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, m_output.Get(), STDOUT_FILENO);
    const int error = posix_spawnp(&m_pid, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
    {
        throw std::runtime_error("cannot start " + command.at(0));
    }
}

Process::Process(Process&& other) noexcept
    : m_pid(std::exchange(other.m_pid, -1)), m_output(std::move(other.m_output)), m_status(other.m_status)
{
}

Process::~Process()
{
    if (m_pid > 0 && !HasEnded())
    {
        kill(m_pid, SIGKILL);
        waitpid(m_pid, nullptr, 0);
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
    std::string text(static_cast<std::size_t>(lseek(m_output.Get(), 0, SEEK_END)), '\0');
    const ssize_t size = pread(m_output.Get(), text.data(), text.size(), 0);
    text.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return text;
}

bool Process::Says(const std::string& text) const
{
    return WaitUntil([&] { return Output().find(text) != std::string::npos; });
}

std::string RunCommand(const Words& command)
{
    Process process(command);
    EXPECT_EQ(process.Status(), 0) << command.at(0) << " " << (command.size() > 1 ? command[1] : "");
    return process.Output();
}
