#pragma once

#include "Callback.h"

#include <set>
#include <tuple>
#include <vector>

namespace veskar
{

/** From its top to its bottom, in the window. */
struct Extent
{
    int top = 0;
    int bottom = 0;

    int Height() const { return bottom - top; }
    bool Holds(const Extent& other) const
    {
        constexpr int ROUNDING = 1; // on a screen that is not 1920x1080
        return top - other.top <= ROUNDING && other.bottom - bottom <= ROUNDING;
    }
};

/**
 * Hides rows that the end of a list cuts, so that the viewer sees whole rows only. Rows of several lines are higher
 * than others, and the list is then not a number of rows high. A row higher than the list is always seen.
 */
class WholeRows
{
public:
    explicit WholeRows(Evas_Object* list);

private:
    /** What decides on which rows are cut. */
    struct Arrangement
    {
        Extent view;
        int top = 0;    // of the view, in all rows
        int height = 0; // of all rows
        std::vector<void*> rows;

        bool operator==(const Arrangement& other) const
        {
            return std::tie(view.top, view.bottom, top, height, rows) ==
                   std::tie(other.view.top, other.view.bottom, other.top, other.height, other.rows);
        }
    };

    void m_BeforeDrawing();
    void m_OnRowRealised(void* row);
    void m_Show(Elm_Object_Item* row, bool whole);

    Evas_Object* m_list;
    std::set<Elm_Object_Item*> m_hidden;
    Arrangement m_seen;
    SmartCallback m_rowRealised;
    IdleEnterer m_beforeDrawing;
};

} // namespace veskar
