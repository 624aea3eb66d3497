#pragma once

namespace VESKAR_APP
{

/** What the application frame tells of the application's life. Main thread. */
class IApplicationFramework
{
public:
    /** The application left the screen: what is shown is closed, and without a new screen the application soon ends. */
    virtual void Pause() = 0;

    virtual void Resume() = 0;

    /** Closes what is shown, as the Exit key does. */
    virtual void Exit() = 0;

    /** The application ends: what is shown is answered as closed. */
    virtual void Terminate() = 0;

    virtual ~IApplicationFramework() = default;
};

} // namespace VESKAR_APP
