// What every fuzz target is linked with.

#include "Input.h"

#include <cstdarg>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <dlog.h>

/** Writes each line of the platform's log and keeps none; weak, for targets with a log of their own. */
[[gnu::weak]] int __dlog_print(log_id_t /*id*/, int /*priority*/, const char* /*tag*/, const char* format, ...)
{
    char line[4096];
    va_list arguments;
    va_start(arguments, format);
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is started above.
    const int length = std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    return length;
}

// What the toolkit and the bus library keep to the end of the process is no leak of ours.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the sanitizer's
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libdbus\nleak:libeo\nleak:libevas\nleak:libeina\nleak:libfontconfig\nleak:libelementary\nleak:"
           "libedje\n";
}

#ifdef VESKAR_REPLAY
/** Runs over the files of a folder, where no fuzzer brings its main function. */
int main(int /*argc*/, char** argv)
{
    int runs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(argv[1]))
    {
        std::printf("%s\n", entry.path().filename().c_str());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
        ++runs;
    }
    return runs > 0 ? 0 : 1;
}
#endif
