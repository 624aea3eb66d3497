/** A desktop's keyboard as the remote control: which of its keys stands for which key of the remote control. */
#pragma once

#include "KeyTable.h"

#include <string>

namespace veskar
{

/** The remote control's key for a Linux input event code, as the backend reports it; null when there is none. */
const Key* DeskKey(uint32_t code);

/** Help for the person at the keyboard: one line for each key. */
std::string DeskKeyboardHelp();

} // namespace veskar
