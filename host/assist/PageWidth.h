#pragma once

#include <Evas.h>

namespace veskar
{

/** Where a text stands in its place, in pixels. */
struct Across
{
    int left;
    int width;
};

/**
 * Makes a text so much narrower than `most`, the width of its place, that the last line of no paragraph is shorter than
 * a third of the longest line. The text keeps the whole width where that would take a line more, where it has more than
 * some pages, and where it begins on both sides. The text's height stays.
 */
Across Balance(Evas_Object* text, int most);

} // namespace veskar
