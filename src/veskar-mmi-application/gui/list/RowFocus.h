#pragma once

#include "RowView.h"

#include <string_view>

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * Sees to it that a list which has the focus has it on the viewer's row, and that no row shows it otherwise. The
 * toolkit focuses a list and none of its rows, or whichever row is there first, so that the viewer's first key would be
 * lost or land elsewhere; it moves the focus back to a row that can be seen when keys come faster than rows are drawn;
 * and it leaves the row lit when the focus goes to a button.
 *
 * The viewer's row is the first one until a key or a press moves it. What the toolkit moves by itself is undone.
 *
 * Belongs to the list's screen and goes before the list; the destructor takes every callback back.
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

    /** Makes this the viewer's row. */
    void MoveTo(Elm_Object_Item* row);

    /** Where Down leads from the last row: of two buttons equally near below it the toolkit would take either. */
    void LeadDownTo(Evas_Object* button);

private:
    static void s_OnWindowFocused(void* data, Evas_Object* window, void* eventInfo);
    static void s_OnListFocused(void* data, Evas_Object* list, void* eventInfo);
    static void s_OnListUnfocused(void* data, Evas_Object* list, void* eventInfo);
    static void s_OnRowFocused(void* data, Evas_Object* list, void* row);
    static void s_OnRowRealised(void* data, Evas_Object* list, void* row);
    static void s_OnRowPressed(void* data, Evas_Object* list, void* row);
    static void s_OnMoved(void* data);

    static Eina_Bool s_OnKey(void* data, Evas_Object* list, Evas_Object* source, Evas_Callback_Type type,
                             void* eventInfo);

    /** Whether the key is used up. */
    bool m_TakeKey(std::string_view key);
    /** To the next row, or on through this one; whether there was anywhere to go. */
    bool m_Go(Way way);
    /** Puts the focus of a list that has it on the viewer's row. */
    void m_Restore();
    void m_RestoreSoon();
    /**
     * A window has no keyboard before its first picture, and without one the toolkit lights no row; in that picture,
     * too, the viewer sees where he is.
     */
    void m_LightEarly(bool lit);

    Evas_Object* m_window;
    Evas_Object* m_list;
    Evas_Object* m_below;
    Elm_Object_Item* m_row; // the viewer's; null: the one that the list goes to by itself
    bool m_litEarly;
    Ecore_Job* m_restoring;
};

} // namespace VESKAR_APP
