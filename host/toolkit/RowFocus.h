#pragma once

#include "Callback.h"
#include "RowView.h"

#include <string_view>

namespace veskar
{

/**
 * Keeps the focus of a list on the viewer's row, and shows it on no row otherwise. The stock toolkit focuses a list and
 * none of its rows, or whichever row is there first, so that the viewer's first key would be lost or land elsewhere; it
 * moves the focus back to a row in view when keys come faster than rows are drawn; and it leaves the row lit when the
 * focus moves to a button.
 *
 * The viewer's row is the first one until a key or a press moves it. What the toolkit moves on its own is undone. Rows
 * are deleted only together with their list.
 */
class RowFocus
{
public:
    explicit RowFocus(Evas_Object* list);
    ~RowFocus();

    RowFocus(const RowFocus&) = delete;
    RowFocus& operator=(const RowFocus&) = delete;

private:
    void m_OnShown();
    void m_OnWindowFocused(void* info);
    void m_OnListFocused(void* info);
    void m_OnListUnfocused(void* info);
    void m_OnRowFocused(void* row);
    void m_OnRowRealised(void* row);
    void m_OnRowPressed(void* row);

    static void s_OnMoved(void* data);
    static Eina_Bool s_OnKey(void* data, Evas_Object* list, Evas_Object* source, Evas_Callback_Type type,
                             void* eventInfo);

    /** The viewer's; null after a key by which the list moves to a row of its own choice. */
    Elm_Object_Item* m_Row() const;
    void m_SetRow(Elm_Object_Item* row);

    /** Whether the key is used up. */
    bool m_TakeKey(std::string_view key);
    /** To the next row, or on through this one; whether there was anywhere to move. */
    bool m_Move(Way way);
    /** Puts the focus of a list that has it on the viewer's row. */
    void m_Restore();
    void m_RestoreSoon();
    /**
     * A window has no keyboard before its first picture, and without one the toolkit lights no row; in that picture,
     * too, the viewer sees which row has the focus.
     */
    void m_LightEarly(bool lit);

    Evas_Object* m_list;
    Evas_Object* m_window;
    Elm_Object_Item* m_row = nullptr;
    bool m_moved = false; // m_row counts: before that the first row is the viewer's
    bool m_litEarly = false;
    Ecore_Job* m_restoring = nullptr;
    EventCallback m_shown;
    SmartCallback m_windowFocused;
    SmartCallback m_listFocused;
    SmartCallback m_listUnfocused;
    SmartCallback m_rowFocused;
    SmartCallback m_rowRealised;
    SmartCallback m_rowSelected;
    SmartCallback m_rowUnselected;
};

} // namespace veskar
