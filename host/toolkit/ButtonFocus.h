#pragma once

#include <Elementary.h>

namespace veskar
{

/**
 * Leads Down from a button of a screen to the next button below, or nowhere. Rows of a long list that are realised
 * below its view are below the buttons for the stock toolkit, which would jump up into the list, to a row of its own
 * choice.
 */
class ButtonFocus
{
public:
    explicit ButtonFocus(Evas_Object* popup);
    ~ButtonFocus();

    ButtonFocus(const ButtonFocus&) = delete;
    ButtonFocus& operator=(const ButtonFocus&) = delete;

private:
    static Eina_Bool s_OnKey(void* data, Evas_Object* popup, Evas_Object* source, Evas_Callback_Type type,
                             void* eventInfo);

    Evas_Object* m_popup;
};

} // namespace veskar
