/** The setting that tells the TV whether the number pad is on the screen. */
#pragma once

#include "FileDescriptor.h"

namespace veskar
{

/**
 * True to the screen also when this process is killed: a second process, which does nothing else, waits for this one's
 * end and sets the value back.
 */
class ShownSetting
{
public:
    /** To be made while the process has one thread and no toolkit: the second process is a copy of it. */
    ShownSetting();
    ~ShownSetting();

    ShownSetting(const ShownSetting&) = delete;
    ShownSetting& operator=(const ShownSetting&) = delete;

    void Set(bool shown);

private:
    void m_TellGuard() const;

    FileDescriptor m_guard; // a socket whose other end the second process has; it closes with this process
    bool m_shown = false;
};

} // namespace veskar
