#pragma once

#include <Elementary.h>

namespace veskar
{

/**
 * Whether the screen's buttons may have the focus. The stock toolkit gives it to the second one when the first is
 * hidden; a TV's gives it to none until an arrow key looks for one, so that Return cannot answer what nobody has
 * chosen.
 */
void AllowButtonFocus(Evas_Object* popup, bool allow);

/**
 * Leads an arrow key from a screen on which nothing has the focus to its first button, and Down from a button to the
 * next button below, or nowhere. Rows of a long list that are realised below its view are below the buttons for the
 * stock toolkit, which would jump up into the list, to a row of its own choice.
 */
class ButtonFocus
{
public:
    explicit ButtonFocus(Evas_Object* popup);
    ~ButtonFocus();

    ButtonFocus(const ButtonFocus&) = delete;
    ButtonFocus& operator=(const ButtonFocus&) = delete;

private:
    static Eina_Bool s_OnWidgetEvent(void* data, Evas_Object* popup, Evas_Object* source, Evas_Callback_Type type,
                                     void* eventInfo);
    /** Also without a focus; no widget gets the event then. */
    static void s_OnKeyDown(void* data, Evas* canvas, Evas_Object* popup, void* eventInfo);

    Evas_Object* m_popup;
};

} // namespace veskar
