/** Tells when the TV's language or direction has been set to something else. */
#pragma once

#include <functional>

#include <Ecore_File.h>

namespace veskar
{

/**
 * The settings are files, so whoever writes them, by whatever means, is noticed, and needs no bus. Main thread, while
 * the toolkit is initialised.
 */
class LanguageWatch
{
public:
    explicit LanguageWatch(std::function<void()> changed);
    LanguageWatch(const LanguageWatch&) = delete;
    LanguageWatch& operator=(const LanguageWatch&) = delete;
    ~LanguageWatch();

private:
    static void s_OnChange(void* data, Ecore_File_Monitor* monitor, Ecore_File_Event event, const char* path);

    std::function<void()> m_changed;
    Ecore_File_Monitor* m_monitor = nullptr;
};

} // namespace veskar
