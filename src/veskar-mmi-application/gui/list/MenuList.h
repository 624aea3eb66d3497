/** What the toolkit lists of several list screens have in common. */
#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/** A new list without any setting, or null with an error line. */
Evas_Object* AddMenuList(Evas_Object* parent);

/** A new list whose rows are all of one height, ready but for its rows; or null with an error line. */
Evas_Object* CreateEvenMenuList(Evas_Object* parent, Elm_Object_Select_Mode selectMode, bool multiSelect);

/** Both inside a main-loop section of the caller's. */
void ApplyMenuListLook(Evas_Object* list);
void SwitchFocusHighlightOn();

} // namespace VESKAR_APP
