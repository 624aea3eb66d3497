#include "SettingsStore.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "FileDescriptor.h"

namespace veskar
{
namespace
{

namespace fs = std::filesystem;

bool StartsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/** Empty when unset. */
fs::path FolderFrom(const char* variable)
{
    const char* value = getenv(variable);
    return value != nullptr ? fs::path(value) : fs::path();
}

/** An unnamed folder stays unnamed: nothing is kept relative to wherever the program happens to run. */
fs::path Below(const fs::path& folder, const char* name)
{
    return folder.empty() ? fs::path() : folder / name;
}

fs::path FirstNamed(const fs::path& first, const fs::path& second)
{
    return first.empty() ? second : first;
}

fs::path KeptFolder()
{
    const auto configuration = FirstNamed(FolderFrom("XDG_CONFIG_HOME"), Below(FolderFrom("HOME"), ".config"));
    return FirstNamed(FolderFrom("VESKAR_SETTINGS_DIR"), Below(configuration, "veskar-tv"));
}

fs::path FolderOf(SettingKind kind)
{
    switch (kind)
    {
    case SettingKind::Kept:
        return KeptFolder();
    case SettingKind::Volatile:
        return FirstNamed(FolderFrom("VESKAR_MEMORY_DIR"), Below(FolderFrom("XDG_RUNTIME_DIR"), "veskar-tv"));
    default:
        return FirstNamed(FolderFrom("VESKAR_FEATURES_DIR"), Below(KeptFolder(), "features"));
    }
}

bool IsWellFormedComponent(std::string_view component)
{
    return !component.empty() && component != "." && component != "..";
}

/** Bytes. No value of the TV comes near it. */
constexpr size_t LARGEST_FILE = 64UL * 1024;

/** Nothing for what is missing, too large, or no plain file. */
std::optional<std::string> ReadFile(const char* path)
{
    const FileDescriptor file(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (!file || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<size_t>(status.st_size) > LARGEST_FILE)
    {
        return std::nullopt;
    }
    std::string content(static_cast<size_t>(status.st_size), '\0');
    const ssize_t length = read(file.Get(), content.data(), content.size());
    if (length < 0)
    {
        return std::nullopt;
    }
    content.resize(static_cast<size_t>(length));
    return content;
}

/** A file of ours beside the one to be replaced; it goes away again unless it has taken the other's place. */
class TemporaryFile
{
public:
    explicit TemporaryFile(const fs::path& beside)
        : m_path(beside.string() + ".XXXXXX"), m_file(mkostemp(m_path.data(), O_CLOEXEC)),
          m_error(!m_file ? LastError() : std::error_code())
    {
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (m_file)
        {
            unlink(m_path.c_str());
        }
    }

    std::error_code Write(std::string_view text)
    {
        while (!m_error && !text.empty())
        {
            const ssize_t count = write(m_file.Get(), text.data(), text.size());
            m_error = count < 0 ? LastError() : std::error_code();
            text.remove_prefix(static_cast<size_t>(std::max<ssize_t>(count, 0)));
        }
        return m_error;
    }

    std::error_code MoveTo(const fs::path& target)
    {
        // mkostemp makes it for its owner alone; the TV's parts may run as several users.
        if (!m_error && (fchmod(m_file.Get(), 0644) != 0 || rename(m_path.c_str(), target.c_str()) != 0))
        {
            m_error = LastError();
        }
        return m_error;
    }

private:
    static std::error_code LastError() { return {errno, std::generic_category()}; }

    std::string m_path;
    FileDescriptor m_file;
    std::error_code m_error;
};

} // namespace

SettingKind KindOf(std::string_view key)
{
    if (StartsWith(key, "db/"))
    {
        return SettingKind::Kept;
    }
    return StartsWith(key, "memory/") ? SettingKind::Volatile : SettingKind::Feature;
}

bool IsWellFormedKey(std::string_view key)
{
    if (std::any_of(key.begin(), key.end(), [](unsigned char byte) { return byte < ' ' || byte == 0x7F; }))
    {
        return false;
    }
    for (auto slash = key.find('/'); slash != std::string_view::npos; slash = key.find('/'))
    {
        if (!IsWellFormedComponent(key.substr(0, slash)))
        {
            return false;
        }
        key.remove_prefix(slash + 1);
    }
    return IsWellFormedComponent(key);
}

std::optional<fs::path> SettingFile(std::string_view key)
{
    if (!IsWellFormedKey(key))
    {
        return std::nullopt;
    }
    const auto folder = FolderOf(KindOf(key));
    return folder.empty() ? std::nullopt : std::optional(folder / key);
}

std::optional<std::string> ReadSetting(std::string_view key)
{
    const auto path = SettingFile(key);
    auto value = path ? ReadFile(path->c_str()) : std::nullopt;
    if (value && !value->empty() && value->back() == '\n')
    {
        value->pop_back();
    }
    return value;
}

std::optional<int> ParseWholeNumber(std::string_view text)
{
    int number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

std::optional<int> ReadWholeNumber(std::string_view key)
{
    const auto text = ReadSetting(key);
    return text ? ParseWholeNumber(*text) : std::nullopt;
}

std::error_code WriteSetting(std::string_view key, std::string_view value)
{
    const auto path = SettingFile(key);
    if (!path)
    {
        return std::make_error_code(std::errc::invalid_argument);
    }
    const std::string line = std::string(value) + "\n";
    if (line.size() > LARGEST_FILE)
    {
        return std::make_error_code(std::errc::file_too_large);
    }
    std::error_code error;
    fs::create_directories(path->parent_path(), error);
    if (error)
    {
        return error;
    }
    TemporaryFile file(*path);
    error = file.Write(line);
    return error ? error : file.MoveTo(*path);
}

std::error_code RemoveSetting(std::string_view key)
{
    const auto path = SettingFile(key);
    std::error_code error = path ? std::error_code() : std::make_error_code(std::errc::invalid_argument);
    if (path)
    {
        fs::remove(*path, error);
    }
    return error;
}

} // namespace veskar
