// Preloaded into the application: says on standard error when the main loop works for long between two sleeps. What
// never comes back is noticed by whoever waits for it.

#include <cstdio>
#include <ctime>
#include <limits>

#include <dlfcn.h>
#include <pthread.h>
#include <sys/epoll.h>
#include <sys/select.h>

namespace
{

constexpr double LONGEST = 200; // milliseconds

/** Of this thread, in milliseconds: a busy machine may keep a loop waiting that does nothing long. */
double ProcessorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

const pthread_t s_main = pthread_self();
double s_awakeSince = std::numeric_limits<double>::max(); // what comes before its first sleep does not count

/** Calls the function of that name in the library, and looks at how long the main loop has been awake. */
template <typename Function, typename... Arguments>
int Sleep(const char* name, Arguments... arguments)
{
    const auto real = reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
    if (pthread_equal(pthread_self(), s_main) == 0)
    {
        return real(arguments...);
    }
    if (const double worked = ProcessorTime() - s_awakeSince; worked > LONGEST)
    {
        std::fprintf(stderr, "watchdog: the main loop worked for %.0f ms\n", worked);
    }
    const int result = real(arguments...);
    s_awakeSince = ProcessorTime();
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
