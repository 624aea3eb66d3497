#pragma once

#include "Callback.h"

#include <set>

namespace veskar
{

/**
 * Hides rows that the end of a list cuts, so that the viewer sees whole rows only. Rows of several lines are higher
 * than others, and the list is then not a number of rows high. A row higher than the list is always seen.
 */
class WholeRows
{
public:
    explicit WholeRows(Evas_Object* list);

private:
    void m_BeforeDrawing();
    void m_OnRowRealised(void* row);
    void m_Show(Elm_Object_Item* row, bool whole);

    Evas_Object* m_list;
    std::set<Elm_Object_Item*> m_hidden;
    SmartCallback m_rowRealised;
    IdleEnterer m_beforeDrawing;
};

} // namespace veskar
