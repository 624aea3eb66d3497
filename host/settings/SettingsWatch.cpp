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
    : m_changed(std::move(changed))
{
    for (const char* key : keys)
    {
        m_values[key] = ReadSetting(key);
    }
    ecore_file_init();
    const std::string& first = m_values.begin()->first;
    const auto folder = MakeFolderOf(first);
    m_monitor = folder.empty() ? nullptr : ecore_file_monitor_add(folder.c_str(), s_OnChange, this);
    if (m_monitor == nullptr)
    {
        __dlog_print(LOG_ID_MAIN, DLOG_WARN, "VESKAR-SETTINGS", "changes of %s are not noticed: no folder to watch",
                     first.c_str());
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
    auto* watch = static_cast<SettingsWatch*>(data);
    const auto known = std::find_if(watch->m_values.begin(), watch->m_values.end(),
                                    [path](const auto& value) { return path == SettingFile(value.first); });
    if (known == watch->m_values.end())
    {
        return; // another setting, or the temporary file beside one that is being replaced
    }
    // One write is several events of the file system.
    if (auto value = ReadSetting(known->first); value != known->second)
    {
        known->second = std::move(value);
        watch->m_changed();
    }
}

} // namespace veskar
