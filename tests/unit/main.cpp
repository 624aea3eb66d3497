#include <cstdlib>

#include <Efreet.h>
#include <Elementary.h>
#include <gmock/gmock.h>

// For the sanitizers: what the toolkit never frees, its own order of locks, and what the frame never deletes.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizers'.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libdbus\nleak:libeo\nleak:libevas\nleak:libeina\nleak:libfontconfig\nleak:_create\n";
}
extern "C" const char* __tsan_default_suppressions()
{
    return "deadlock:libevas\nthread:OneShotTimerCallback::StartTimer\nthread:libeina\n";
}
// NOLINTEND(bugprone-reserved-identifier)

// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the linker's.
extern "C" int __wrap_main(int argc, char** argv)
{
    setenv("ELM_DISPLAY", "buffer", 1);
    setenv("ELM_ENGINE", "buffer", 1);
    setenv("ELM_SCALE", "1.0", 1);
    setenv("VESKAR_LAYOUT", BUILT_LAYOUT, 1);
    setenv("EINA_LOG_LEVEL", "0", 1);               // the toolkit logs at length that there is no system bus
    setenv("ECORE_EVAS_FORCE_SYNC_RENDER", "1", 1); // its drawing thread may end the process on a busy machine
    efreet_cache_disable();                         // its daemon would outlive the test and hold its output
    testing::InitGoogleMock(&argc, argv);
    elm_init(argc, argv);
    return RUN_ALL_TESTS();
}
