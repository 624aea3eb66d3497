/**
 * Least sizes of widgets. The toolkit keeps two for each object: the one that evas_object_size_hint_min_set writes,
 * which a scrolling widget overwrites with its own each time it is laid out, and one that no widget touches. What
 * surrounds the widget takes the larger.
 */
#pragma once

#include <Elementary.h>

namespace veskar
{

/** Pixels. */
struct Size
{
    int width = 0;
    int height = 0;

    bool operator==(const Size& other) const { return width == other.width && height == other.height; }
    bool operator!=(const Size& other) const { return !(*this == other); }
};

/** The least size that no widget touches. */
Size OuterLeastSize(const Evas_Object* object);
void SetOuterLeastSize(Evas_Object* object, Size size);

/** The one that a program sets. */
Size LeastSize(const Evas_Object* object);

/** The size that the object has now. */
Size SizeOf(const Evas_Object* object);

} // namespace veskar
