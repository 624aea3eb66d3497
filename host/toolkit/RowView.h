/** How a list is scrolled for a viewer who walks through it row by row. */
#pragma once

#include <Elementary.h>

namespace veskar
{

enum class Way
{
    Up,
    Down
};

/** The row in this direction, or null. */
Elm_Object_Item* Neighbour(Elm_Object_Item* row, Way way);

/**
 * Brings the whole row into view, and beyond it the row that comes next.
 * Of a row higher than the view, what the viewer meets first.
 */
void ShowRow(Evas_Object* list, Elm_Object_Item* row, Way way);

/** Scrolls on within a row that is higher than the view; false when there is nothing more of it. */
bool ScrollWithin(Evas_Object* list, Elm_Object_Item* row, Way way);

} // namespace veskar
