/** Sends keys to a client that does not have the focus, without taking the focus from the client that has it. */
#pragma once

#include "KeyTable.h"
#include "weston/Weston.h"

namespace veskar
{

/** Sends the surface's client a focus event. The toolkit drops every key for a window that never got one. */
void TellOfFocus(weston_keyboard* keyboard, weston_surface* surface);
void TellOfLostFocus(weston_keyboard* keyboard, weston_surface* surface);

void SendUnfocused(weston_keyboard* keyboard, const timespec* time, const Key& key, wl_keyboard_key_state state,
                   weston_surface* surface);

} // namespace veskar
