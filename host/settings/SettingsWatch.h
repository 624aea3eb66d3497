/** Calls back when a setting has changed. */
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include <Ecore_File.h>

namespace veskar
{

/**
 * The settings are files, so every way of writing them is noticed. One write may be reported as several changes. Main
 * thread only, while the main loop's library is initialised.
 */
class SettingsWatch
{
public:
    /** All keys must be files of one folder. */
    SettingsWatch(std::initializer_list<const char*> keys, std::function<void()> changed);
    SettingsWatch(const SettingsWatch&) = delete;
    SettingsWatch& operator=(const SettingsWatch&) = delete;
    ~SettingsWatch();

private:
    static void s_OnChange(void* data, Ecore_File_Monitor* monitor, Ecore_File_Event event, const char* path);

    std::vector<std::string> m_keys;
    std::function<void()> m_changed;
    Ecore_File_Monitor* m_monitor = nullptr;
};

} // namespace veskar
