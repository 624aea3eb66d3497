/** The keyboards of a client while another one has the focus: it hears keys without taking the focus from that one. */
#pragma once

#include "KeyTable.h"
#include "weston/Weston.h"

namespace veskar
{

/** The toolkit drops a key that comes to a window which was never told that it has the focus. */
void TellOfFocus(weston_keyboard* keyboard, weston_surface* surface);

void SendUnfocused(weston_keyboard* keyboard, const timespec* time, const Key& key, wl_keyboard_key_state state,
                   weston_surface* surface);

} // namespace veskar
