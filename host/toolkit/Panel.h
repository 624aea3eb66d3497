#pragma once

#include <Elementary.h>

namespace veskar
{

/** The layout that draws the sheet or panel of a screen and has all of its texts and controls; null outside of one. */
Evas_Object* PanelAround(const Evas_Object* content);

} // namespace veskar
