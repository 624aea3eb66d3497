/**
 * Where the toolkit draws its windows' pictures: memory that it shares with the compositor.
 *
 * The toolkit takes it from files in the runtime folder. A process that draws into such a file on a full disk is
 * killed, and at any picture, because each takes its room only when it is drawn. Memory that is no file has no disk. A
 * program's definition of the function that makes the files comes before the library's.
 */
#include <cstring>

#include <dlfcn.h>
#include <sys/mman.h>

#include <Eina.h>

extern "C" int eina_file_mkstemp(const char* name, Eina_Tmpstr** path)
{
    static const auto ofTheLibrary =
        reinterpret_cast<decltype(&eina_file_mkstemp)>(dlsym(RTLD_NEXT, "eina_file_mkstemp"));
    if (std::strstr(name, "evas-wayland_shm") == nullptr)
    {
        return ofTheLibrary(name, path);
    }
    if (path != nullptr)
    {
        *path = eina_tmpstr_add(""); // the caller removes the file by its name
    }
    return memfd_create("picture", MFD_CLOEXEC);
}
