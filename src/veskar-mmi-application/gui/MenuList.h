/** What the toolkit lists of all list screens have in common; each screen makes the rest of its settings itself. */
#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/** A new list, or null with an error line. */
Evas_Object* AddMenuList(Evas_Object* parent);

/** Both inside a main-loop section of the caller's. */
void ApplyMenuListLook(Evas_Object* list);
void SwitchFocusHighlightOn();

} // namespace VESKAR_APP
