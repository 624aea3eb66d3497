/** Keeps the memory of a program that sees the digits of a PIN out of files. */
#pragma once

#include <sys/resource.h>

namespace veskar
{

/**
 * From here on no crash of this process, or of those that it starts, is written as a core dump. Debuggers and profilers
 * attach as before, and `prlimit --core` allows a dump again.
 */
inline void WriteNoCoreDump()
{
    rlimit limit{};
    getrlimit(RLIMIT_CORE, &limit);
    // Not 0: the kernel would still hand a dump to a program that collects them. 1 byte it takes as none.
    limit.rlim_cur = limit.rlim_max < 1 ? limit.rlim_max : 1;
    setrlimit(RLIMIT_CORE, &limit);
}

} // namespace veskar
