/** The program's window, found without the program's help. */
#pragma once

#include <Elementary.h>

namespace veskar
{

/** Null before the program has made one. Main loop only. */
Evas_Object* FirstWindow();

} // namespace veskar
