// What the program's widgets are given when they are created: a list the height of its rows, whole rows only and a
// focus that walks them one by one; a screen whole pictures, a size that the TV can show, buttons that lead on, no key
// before it is seen, and a scrim that stays where it replaces another.

#include "ButtonFocus.h"
#include "ButtonWidth.h"
#include "ListHeight.h"
#include "RowFocus.h"
#include "ScreenFit.h"
#include "ScreenNews.h"
#include "Scrim.h"
#include "TextFit.h"
#include "WholeFrames.h"
#include "WholeRows.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Evas_Object* __real_elm_genlist_add(Evas_Object* parent);
    Evas_Object* __real_elm_popup_add(Evas_Object* parent);

    Evas_Object* __wrap_elm_genlist_add(Evas_Object* parent)
    {
        Evas_Object* list = __real_elm_genlist_add(parent);
        if (list != nullptr)
        {
            veskar::LiveWith<veskar::ListHeight>(list, list);
            veskar::LiveWith<veskar::RowFocus>(list, list);
            veskar::LiveWith<veskar::WholeRows>(list, list);
        }
        return list;
    }

    Evas_Object* __wrap_elm_popup_add(Evas_Object* parent)
    {
        Evas_Object* popup = __real_elm_popup_add(parent);
        if (popup != nullptr)
        {
            veskar::LiveWith<veskar::WholeFrames>(popup, parent);
            veskar::LiveWith<veskar::ScreenFit>(popup, parent, popup);
            veskar::LiveWith<veskar::TextFit>(popup, popup);
            veskar::LiveWith<veskar::ButtonFocus>(popup, popup);
            veskar::LiveWith<veskar::ButtonWidth>(popup, popup);
            veskar::LiveWith<veskar::ScreenNews>(popup, popup);
            veskar::LiveWith<veskar::Scrim>(popup, popup);
        }
        return popup;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
