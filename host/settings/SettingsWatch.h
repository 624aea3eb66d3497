/** Tells when a setting has been set to something else. */
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include <Ecore_File.h>

namespace veskar
{

/**
 * The settings are files, so whoever writes them, by whatever means, is noticed, and needs no bus. Writing one may be
 * told as several changes. Main thread, while the main loop's library is initialised.
 */
class SettingsWatch
{
public:
    /** The keys are neighbours: files of one folder. */
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
