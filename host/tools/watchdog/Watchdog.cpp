/**
 * Preloaded into a program, it says on standard error when the main loop works for long between two sleeps, and where
 * it is then. What never comes back is said too, once. VESKAR_WATCHDOG_MS: how long is long, 200 when unset.
 */
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include <dlfcn.h>
#include <execinfo.h>
#include <pthread.h>
#include <sys/epoll.h>
#include <sys/select.h>
#include <unistd.h>

namespace
{

constexpr long NANOSECONDS = 1'000'000; // in a millisecond

long Longest()
{
    const char* chosen = std::getenv("VESKAR_WATCHDOG_MS");
    return chosen != nullptr ? std::atol(chosen) : 200;
}

/** Of this thread, in milliseconds: a busy machine may keep a loop waiting that does nothing long. */
long ProcessorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1000 * time.tv_sec + time.tv_nsec / NANOSECONDS;
}

void SayWhere(int /*signal*/)
{
    constexpr char LINE[] = "watchdog: the main loop does not come back from here:\n";
    void* frames[64];
    if (write(STDERR_FILENO, LINE, sizeof LINE - 1) > 0)
    {
        backtrace_symbols_fd(frames, backtrace(frames, 64), STDERR_FILENO);
    }
}

/** Runs with the processor time of the thread that is loaded with the program, the main one. */
timer_t MakeTimer()
{
    void* frame = nullptr;
    backtrace(&frame, 1); // the first call loads a library, which a signal's handler must not do
    std::signal(SIGPROF, SayWhere);
    sigevent event{};
    event.sigev_notify = SIGEV_THREAD_ID;
    event.sigev_signo = SIGPROF;
    event._sigev_un._tid = gettid();
    timer_t timer{};
    timer_create(CLOCK_THREAD_CPUTIME_ID, &event, &timer);
    return timer;
}

const pthread_t MAIN_THREAD = pthread_self();
const long LONGEST = Longest();
const timer_t TIMER = MakeTimer();
long s_awakeSince = 0;
bool s_hasSlept = false; // what comes before its first sleep does not count

/** 0: never. */
void SayWhereAfter(long milliseconds)
{
    const itimerspec time{{0, 0}, {milliseconds / 1000, milliseconds % 1000 * NANOSECONDS}};
    timer_settime(TIMER, 0, &time, nullptr);
}

/** Calls the function of that name in the library, and looks at how long the main loop has been awake. */
template <typename Function, typename... Arguments>
int Sleep(const char* name, Arguments... arguments)
{
    const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
    if (pthread_equal(pthread_self(), MAIN_THREAD) == 0)
    {
        return real(arguments...);
    }
    SayWhereAfter(0);
    if (const long worked = ProcessorTime() - s_awakeSince; s_hasSlept && worked > LONGEST)
    {
        std::fprintf(stderr, "watchdog: the main loop worked for %ld ms\n", worked);
    }
    const int result = real(arguments...);
    s_awakeSince = ProcessorTime();
    s_hasSlept = true;
    SayWhereAfter(LONGEST);
    return result;
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
