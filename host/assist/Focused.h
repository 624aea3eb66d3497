/** What has the focus, and how the voice guide says it. */
#pragma once

#include <Elementary.h>
#include <string>

namespace veskar
{

/** A widget, and in a list its row. Both may be deleted later, so keep them for comparisons only. */
struct Focused
{
    Evas_Object* object = nullptr;
    Elm_Object_Item* row = nullptr;
    /** Only for rows that can be ticked; false for everything else. */
    bool ticked = false;

    bool SameElement(const Focused& other) const { return object == other.object && row == other.row; }
};

/** All members are null when neither the window nor anything in it has the focus. */
Focused FindFocused(const Evas_Object* window);

/** A button's label or a row's cells, as markup. Empty when there is nothing to say, or not yet. */
std::string TextOf(const Focused& focused);

/** "ticked" or "not ticked"; empty for what cannot be ticked. */
std::string TickOf(const Focused& focused);

/** "2 of 6" for a row of a list of several; empty otherwise. */
std::string PlaceOf(const Focused& focused);

} // namespace veskar
