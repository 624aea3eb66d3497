/**
 * A log line for each call that this process refuses.
 *
 * The bus library refuses a call of a wrong signature itself, and tells nobody. All error replies, its own included,
 * are made by one function of its interface. A program's definition of that function comes before the library's.
 */
#include <dlfcn.h>

#include <Eldbus.h>

#include "Log.h"

extern "C" Eldbus_Message* eldbus_message_error_new(const Eldbus_Message* call, const char* name, const char* text)
{
    using Function = decltype(&eldbus_message_error_new);
    static const auto ofTheLibrary = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "eldbus_message_error_new"));
    // The library also answers this process's own calls with it, when it gives up waiting. Those have no sender.
    if (const char* sender = eldbus_message_sender_get(call))
    {
        APPFW_ERROR("%s(%s) of %s is refused: %s", eldbus_message_member_get(call), eldbus_message_signature_get(call),
                    sender, text);
    }
    return ofTheLibrary(call, name, text);
}
