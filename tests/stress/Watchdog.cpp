// Preloaded into the application: says on standard error when the main loop does not come back to its sleep for long,
// and where it was.

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <thread>

#include <dlfcn.h>
#include <execinfo.h>
#include <pthread.h>
#include <sys/epoll.h>
#include <sys/select.h>
#include <unistd.h>

namespace
{

constexpr std::chrono::milliseconds LONGEST{200};

using Clock = std::chrono::steady_clock;

std::atomic<Clock::rep> s_awakeSince{0}; // 0 while the loop sleeps
pthread_t s_main;
clockid_t s_clock;

double ProcessorTime()
{
    timespec time{};
    clock_gettime(s_clock, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void PrintStack(int)
{
    void* frames[60];
    backtrace_symbols_fd(frames, backtrace(frames, 60), STDERR_FILENO);
}

/** Looks at the processor's time too: a busy machine may keep a loop waiting that does nothing long. */
void Watch()
{
    Clock::rep seen = 0;
    bool told = false;
    double processor = 0;
    for (;;)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        const Clock::rep since = s_awakeSince;
        if (since != seen)
        {
            if (told)
            {
                std::fprintf(stderr, "watchdog: the block above took %.0f ms of the processor\n",
                             1000 * (ProcessorTime() - processor));
            }
            seen = since;
            told = false;
            processor = ProcessorTime();
        }
        else if (since != 0 && !told &&
                 Clock::now().time_since_epoch().count() - since > Clock::duration(LONGEST).count())
        {
            told = true;
            std::fprintf(stderr, "watchdog: the main loop is blocked here:\n");
            pthread_kill(s_main, SIGRTMAX);
        }
    }
}

/** Calls the function of that name in the library, with the loop counted as asleep. */
template <typename Function, typename... Arguments>
int Sleep(const char* name, Arguments... arguments)
{
    const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
    if (pthread_equal(pthread_self(), s_main) == 0)
    {
        return real(arguments...);
    }
    s_awakeSince = 0;
    const int result = real(arguments...);
    s_awakeSince = Clock::now().time_since_epoch().count();
    return result;
}

[[gnu::constructor]] void Start()
{
    s_main = pthread_self();
    pthread_getcpuclockid(s_main, &s_clock);
    void* frame = nullptr;
    backtrace(&frame, 1); // loads what it needs, which a signal handler must not do
    std::signal(SIGRTMAX, PrintStack);
    std::thread(Watch).detach();
}

} // namespace

extern "C"
{
    int epoll_wait(int set, epoll_event* events, int count, int milliseconds)
    {
        return Sleep<decltype(&epoll_wait)>("epoll_wait", set, events, count, milliseconds);
    }
    int select(int count, fd_set* in, fd_set* out, fd_set* exceptions, timeval* time)
    {
        return Sleep<decltype(&select)>("select", count, in, out, exceptions, time);
    }
}
