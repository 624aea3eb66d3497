// Every screen of the program: whole pictures only, and no larger than the TV.

#include "ScreenFit.h"
#include "WholeFrames.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Evas_Object* __real_elm_popup_add(Evas_Object* parent);

    Evas_Object* __wrap_elm_popup_add(Evas_Object* parent)
    {
        Evas_Object* popup = __real_elm_popup_add(parent);
        if (popup != nullptr)
        {
            veskar::LiveWith<veskar::WholeFrames>(popup, parent);
            veskar::LiveWith<veskar::ScreenFit>(popup, parent, popup);
        }
        return popup;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
