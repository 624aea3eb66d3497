#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace veskar
{

/** A new folder that nobody else can look into; removed with this object, and all that is in it. */
class TemporaryFolder
{
public:
    /** Throws std::system_error. */
    TemporaryFolder() : m_path(std::filesystem::temp_directory_path() / "veskar-remote.XXXXXX")
    {
        if (mkdtemp(m_path.data()) == nullptr)
        {
            throw std::system_error(errno, std::generic_category(), m_path);
        }
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

} // namespace veskar
