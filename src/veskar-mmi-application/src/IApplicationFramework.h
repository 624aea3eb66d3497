#pragma once

namespace VESKAR_APP
{

/** The events of the application's life, from the application frame. Main thread. */
class IApplicationFramework
{
public:
    /** The application left the screen. Closes what is shown; without a new screen the application soon ends. */
    virtual void Pause() = 0;

    /** The application is back on the screen. Takes the keyboard and the keys; shows nothing. */
    virtual void Resume() = 0;

    /** Closes what is shown, as the Exit key does. */
    virtual void Exit() = 0;

    /** The application ends. Closes what is shown. */
    virtual void Terminate() = 0;

    virtual ~IApplicationFramework() = default;
};

} // namespace VESKAR_APP
