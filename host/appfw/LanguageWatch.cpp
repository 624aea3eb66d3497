#include "LanguageWatch.h"

#include <filesystem>

#include "Log.h"
#include "SettingKeys.h"
#include "SettingsStore.h"

namespace veskar
{

LanguageWatch::LanguageWatch(std::function<void()> changed) : m_changed(std::move(changed))
{
    const auto file = SettingFile(LanguageKey);
    if (!file)
    {
        APPFW_WARN("no folder for the settings: changes of language are not noticed");
        return;
    }
    // Both settings are files of this folder. It has to exist to be watched.
    const auto folder = file->parent_path();
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    m_monitor = error ? nullptr : ecore_file_monitor_add(folder.c_str(), s_OnChange, this);
    if (m_monitor == nullptr)
    {
        APPFW_WARN("%s cannot be watched: changes of language are not noticed", folder.c_str());
    }
}

LanguageWatch::~LanguageWatch()
{
    if (m_monitor != nullptr)
    {
        ecore_file_monitor_del(m_monitor);
    }
}

void LanguageWatch::s_OnChange(void* data, Ecore_File_Monitor*, Ecore_File_Event, const char* path)
{
    // The temporary file beside a setting that is being replaced is not a change yet.
    if (path == SettingFile(LanguageKey) || path == SettingFile(OrientationKey))
    {
        static_cast<LanguageWatch*>(data)->m_changed();
    }
}

} // namespace veskar
