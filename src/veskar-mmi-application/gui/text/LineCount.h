#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/** The number of lines of a layout widget's text block, each written to the log; 0 where there is none. */
int CountLines(const Evas_Object* object, const char* partName);

} // namespace VESKAR_APP
