#pragma once

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * Sees to it that a list which has the focus has it on a row, and that no row shows it otherwise: the toolkit focuses a
 * list and none of its rows, so that the viewer's first key would be lost on finding one, and leaves the row lit when
 * the focus goes to a button.
 *
 * Belongs to the list's screen. The window outlives that, so the destructor takes its callback back; those of the list
 * go with the list.
 */
class RowFocus
{
public:
    /**
     * Makes the first row the one that takes the focus when the list gets it, and asks it for the list; whoever asks
     * later, as a screen's first button does, has it instead. The list has rows and is not on the screen yet.
     */
    RowFocus(Evas_Object* window, Evas_Object* list);
    ~RowFocus();

    RowFocus(const RowFocus&) = delete;
    RowFocus& operator=(const RowFocus&) = delete;

    /** Where Down leads from the last row: of two buttons equally near below it the toolkit would take either. */
    void LeadDownTo(Evas_Object* button);

private:
    static void s_OnWindowFocused(void* data, Evas_Object* window, void* eventInfo);
    static void s_OnListFocused(void* data, Evas_Object* list, void* eventInfo);
    static void s_OnListUnfocused(void* data, Evas_Object* list, void* eventInfo);

    static Eina_Bool s_OnKey(void* data, Evas_Object* list, Evas_Object* source, Evas_Callback_Type type,
                             void* eventInfo);

    Evas_Object* m_window;
    Evas_Object* m_list;
    Evas_Object* m_below;
};

} // namespace VESKAR_APP
