/** Calls back when a setting has changed. */
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>

#include <Ecore_File.h>

namespace veskar
{

/**
 * The settings are files, so every way of writing them is noticed. Main thread only, while the main loop's library is
 * initialised.
 */
class SettingsWatch
{
public:
    /** All keys must be files of one folder. A write that leaves a value as it was is no change. */
    SettingsWatch(std::initializer_list<const char*> keys, std::function<void()> changed);
    SettingsWatch(const SettingsWatch&) = delete;
    SettingsWatch& operator=(const SettingsWatch&) = delete;
    ~SettingsWatch();

private:
    static void s_OnChange(void* data, Ecore_File_Monitor* monitor, Ecore_File_Event event, const char* path);

    std::map<std::string, std::optional<std::string>> m_values; // of each key, when it was read last
    std::function<void()> m_changed;
    Ecore_File_Monitor* m_monitor = nullptr;
};

} // namespace veskar
