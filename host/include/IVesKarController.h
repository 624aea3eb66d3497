/** The middleware's controller library. */
#pragma once

#include <string>

namespace VESKAR_API
{

/**
 * What an application may ask of the middleware. The order of the operations is the library's; the first four belong
 * to other applications. No operation waits for the middleware; the result tells whether the message left.
 */
class IVesKarController
{
public:
    /** The one controller of the process, or null where the middleware's side cannot be reached. Never owned. */
    static IVesKarController* Instance();

    virtual void Reserved1() = 0;
    virtual void Reserved2() = 0;
    virtual void Reserved3() = 0;
    virtual void Reserved4() = 0;

    /** Opens a menu of the access module: 0 information, 1 its menu, 2 add, 3 delete an operator profile. */
    virtual bool OpenMenuPosition(int menuPosition) = 0;

    /**
     * The viewer's answer on the screen with these ids. `kind`: 0 answered, 2 closed without an answer, 3 Back.
     * `button` counts from 1 and `item` as the toolkit's list does; both are 0 where they do not apply. `data` is the
     * PIN or the marked rows.
     */
    virtual bool SendResponse(int uiId, unsigned char sourceId, int kind, unsigned char button, unsigned char item,
                              std::string data) = 0;

protected:
    ~IVesKarController() = default;
};

} // namespace VESKAR_API
