#include "Panel.h"

#include "ThemeSizes.h"
#include "Widgets.h"

namespace veskar
{

Evas_Object* PanelAround(const Evas_Object* content)
{
    Evas_Object* around = elm_object_parent_widget_get(content);
    while (around != nullptr && !(Is(around, "elm_layout") && ThemeSize(around, "most_height") != 0))
    {
        around = elm_object_parent_widget_get(around);
    }
    return around;
}

} // namespace veskar
