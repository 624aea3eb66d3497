#include "ShownSetting.h"

#include "Log.h"
#include "SettingKeys.h"
#include "SettingsStore.h"

#include <cerrno>
#include <csignal>
#include <cstring>

#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace veskar
{

namespace
{

void Write(bool shown)
{
    if (const auto error = WriteSetting(NUMBER_PAD_SHOWN_KEY, shown ? "1" : "0"))
    {
        NUMPAD_ERROR("%s cannot be set: %s", NUMBER_PAD_SHOWN_KEY, error.message().c_str());
    }
}

/** Reads the pad's reports until the pad's process ends. */
void Guard(int reports)
{
    prctl(PR_SET_NAME, "numpad-guard");
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    {
        std::signal(signal, SIG_IGN); // both processes get them, and this one has to end last
    }
    bool shown = false;
    ssize_t count = 0;
    do
    {
        count = read(reports, &shown, sizeof shown);
    } while (count > 0 || (count < 0 && errno == EINTR));
    if (shown)
    {
        Write(false);
    }
}

/** The socket to the guard; owns nothing when there is no guard. */
FileDescriptor StartGuard()
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
    {
        return {};
    }
    FileDescriptor reports(ends[0]);
    FileDescriptor reporter(ends[1]);
    const pid_t pid = fork();
    if (pid == 0)
    {
        reporter.Close();
        Guard(reports.Get());
        _exit(0);
    }
    if (pid < 0)
    {
        reporter.Close();
    }
    return reporter;
}

} // namespace

ShownSetting::ShownSetting() : m_guard(StartGuard())
{
    if (!m_guard)
    {
        NUMPAD_WARN("no process to guard %s: %s", NUMBER_PAD_SHOWN_KEY, std::strerror(errno));
    }
}

ShownSetting::~ShownSetting()
{
    Set(false);
}

void ShownSetting::Set(bool shown)
{
    if (shown == m_shown)
    {
        return;
    }
    m_shown = shown;
    // If this process is killed between the two steps, the guard must know of a value that has to be reset.
    if (shown)
    {
        m_TellGuard();
    }
    Write(shown);
    if (!shown)
    {
        m_TellGuard();
    }
}

void ShownSetting::m_TellGuard() const
{
    if (send(m_guard.Get(), &m_shown, sizeof m_shown, MSG_NOSIGNAL) < 0)
    {
        NUMPAD_WARN("%s is not guarded: %s", NUMBER_PAD_SHOWN_KEY, std::strerror(errno));
    }
}

} // namespace veskar
