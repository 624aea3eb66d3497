// A button that the program has hidden stays hidden. The stock popup shows the buttons it holds whenever it is laid
// out, so a hidden one also has to refuse being shown.

#include "ButtonFocus.h"
#include "Widgets.h"

namespace
{

/** In place of being shown. */
void StayHidden(void* /*data*/, Evas_Object* /*button*/) {}

/** While the first button is hidden, no other one gets the focus. */
void TellFocus(const Evas_Object* button, bool shown)
{
    Evas_Object* popup = veskar::PopupAround(button);
    if (popup != nullptr && elm_object_part_content_get(popup, "button1") == button)
    {
        veskar::AllowButtonFocus(popup, shown);
    }
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    void __real_evas_object_show(Evas_Object* object);
    void __real_evas_object_hide(Evas_Object* object);

    void __wrap_evas_object_show(Evas_Object* object)
    {
        if (veskar::Is(object, "elm_button"))
        {
            evas_object_intercept_show_callback_del(object, StayHidden);
            TellFocus(object, true);
        }
        __real_evas_object_show(object);
    }

    void __wrap_evas_object_hide(Evas_Object* object)
    {
        if (veskar::Is(object, "elm_button"))
        {
            evas_object_intercept_show_callback_del(object, StayHidden);
            evas_object_intercept_show_callback_add(object, StayHidden, nullptr);
            TellFocus(object, false);
        }
        __real_evas_object_hide(object);
    }
}
// NOLINTEND(bugprone-reserved-identifier)
