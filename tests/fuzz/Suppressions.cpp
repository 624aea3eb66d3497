// What the toolkit and the bus library keep to the end of the process is no leak of ours.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is the sanitizer's
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libdbus\nleak:libeo\nleak:libevas\nleak:libeina\nleak:libfontconfig\nleak:libelementary\nleak:"
           "libedje\n";
}
