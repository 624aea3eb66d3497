#include "SettingsWatch.h"

#include <algorithm>
#include <filesystem>

#include <dlog.h>

#include "SettingsStore.h"

namespace veskar
{
namespace
{

/** The folder of a setting's file, which has to exist to be watched; empty when there can be none. */
std::filesystem::path MakeFolderOf(const std::string& key)
{
    const auto file = SettingFile(key);
    std::error_code error;
    if (file)
    {
        std::filesystem::create_directories(file->parent_path(), error);
    }
    return file && !error ? file->parent_path() : std::filesystem::path();
}

} // namespace

SettingsWatch::SettingsWatch(std::initializer_list<const char*> keys, std::function<void()> changed)
    : m_keys(keys.begin(), keys.end()), m_changed(std::move(changed))
{
    ecore_file_init();
    const auto folder = MakeFolderOf(m_keys.front());
    m_monitor = folder.empty() ? nullptr : ecore_file_monitor_add(folder.c_str(), s_OnChange, this);
    if (m_monitor == nullptr)
    {
        __dlog_print(LOG_ID_MAIN, DLOG_WARN, "VESKAR-SETTINGS", "changes of %s are not noticed: no folder to watch",
                     m_keys.front().c_str());
    }
}

SettingsWatch::~SettingsWatch()
{
    if (m_monitor != nullptr)
    {
        ecore_file_monitor_del(m_monitor);
    }
    ecore_file_shutdown();
}

void SettingsWatch::s_OnChange(void* data, Ecore_File_Monitor*, Ecore_File_Event, const char* path)
{
    const auto* watch = static_cast<SettingsWatch*>(data);
    // The temporary file beside a setting that is being replaced is not a change yet.
    const bool ours = std::any_of(watch->m_keys.begin(), watch->m_keys.end(),
                                  [path](const std::string& key) { return path == SettingFile(key); });
    if (ours)
    {
        watch->m_changed();
    }
}

} // namespace veskar
