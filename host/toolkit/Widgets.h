/** Finding widgets by what they are. */
#pragma once

#include <Elementary.h>

#include <cstring>

namespace veskar
{

/** False for null. */
inline bool Is(const Evas_Object* object, const char* type)
{
    const char* actual = object != nullptr ? evas_object_type_get(object) : nullptr;
    return actual != nullptr && std::strcmp(actual, type) == 0;
}

/** Whether it may consist of other objects: the toolkit writes an error line when another is asked for them. */
inline bool MayHaveMembers(const Evas_Object* object)
{
    return !Is(object, "rectangle") && !Is(object, "image") && !Is(object, "textblock") && !Is(object, "text");
}

/** The screen that the widget is part of, or null. */
inline Evas_Object* PopupAround(const Evas_Object* widget)
{
    Evas_Object* around = elm_object_parent_widget_get(widget);
    while (around != nullptr && !Is(around, "elm_popup"))
    {
        around = elm_object_parent_widget_get(around);
    }
    return around;
}

/** Whether the screen is the panel at the side. */
inline bool IsAtSide(const Evas_Object* popup)
{
    return std::strcmp(elm_object_style_get(popup), "C_PopupBasic_WhiteRightLarge") == 0;
}

} // namespace veskar
