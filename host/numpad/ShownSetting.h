/** The setting that tells the TV whether the number pad is on the screen. */
#pragma once

#include "FileDescriptor.h"

namespace veskar
{

/**
 * The value stays right even if this process is killed: a second process, the guard, waits for this one's end and
 * resets the value.
 */
class ShownSetting
{
public:
    /** Construct it before the process starts a thread or the toolkit, because the guard is a copy of the process. */
    ShownSetting();
    ~ShownSetting();

    ShownSetting(const ShownSetting&) = delete;
    ShownSetting& operator=(const ShownSetting&) = delete;

    void Set(bool shown);

private:
    void m_TellGuard() const;

    FileDescriptor m_guard; // a socket to the guard, which sees it close when this process ends
    bool m_shown = false;
};

} // namespace veskar
