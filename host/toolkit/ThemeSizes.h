#pragma once

#include <Elementary.h>

namespace veskar
{

/** A size that the theme gives as a data item of the widget's group, in pixels of this screen; 0 where it has none. */
int ThemeSize(const Evas_Object* widget, const char* item);

} // namespace veskar
