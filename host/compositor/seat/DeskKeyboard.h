/** A desktop's keyboard in the part of the remote control: which typed key stands for which key of the remote. */
#pragma once

#include "KeyTable.h"

#include <string>

namespace veskar
{

/** The remote's key for one of Linux' input event codes, as the backend reports it; null for one that means nothing. */
const Key* DeskKey(uint32_t code);

/** One line for each typed key, for a person who sits before the window. */
std::string DeskKeyboardHelp();

} // namespace veskar
