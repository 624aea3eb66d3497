#include "SharedFile.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace veskar
{

std::string SharedFile(const char* variable, const char* name)
{
    if (const char* chosen = std::getenv(variable); chosen != nullptr && *chosen != '\0')
    {
        return chosen;
    }
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto prefix = program.parent_path().parent_path().parent_path();
    return prefix / "share" / "veskar" / name;
}

} // namespace veskar
