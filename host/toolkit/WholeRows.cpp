#include "WholeRows.h"

namespace veskar
{
namespace
{

Extent ExtentOf(const Evas_Object* object)
{
    Extent extent;
    int height = 0;
    evas_object_geometry_get(object, nullptr, &extent.top, nullptr, &height);
    extent.bottom = extent.top + height;
    return extent;
}

/** Where the rows of a list are seen. */
Extent ViewOf(const Evas_Object* list)
{
    int top = 0;
    int height = 0;
    edje_object_part_geometry_get(elm_layout_edje_get(list), "elm.swallow.content", nullptr, &top, nullptr, &height);
    top += ExtentOf(list).top;
    return {top, top + height};
}

std::vector<void*> RealisedRows(const Evas_Object* list)
{
    std::vector<void*> rows;
    void* row = nullptr;
    Eina_List* realised = elm_genlist_realized_items_get(list);
    EINA_LIST_FREE(realised, row)
    {
        rows.push_back(row);
    }
    return rows;
}

} // namespace

WholeRows::WholeRows(Evas_Object* list)
    : m_list(list), m_rowRealised(list, "realized", CallSmart<&WholeRows::m_OnRowRealised>, this),
      m_beforeDrawing(CallTask<&WholeRows::m_BeforeDrawing>, this)
{
}

void WholeRows::m_OnRowRealised(void* row)
{
    // What drew a hidden row before may draw this one.
    m_hidden.insert(static_cast<Elm_Object_Item*>(row));
    m_Show(static_cast<Elm_Object_Item*>(row), true);
    m_seen = {};
}

void WholeRows::m_BeforeDrawing()
{
    evas_smart_objects_calculate(evas_object_evas_get(m_list));
    Arrangement now{ViewOf(m_list), 0, 0, RealisedRows(m_list)};
    elm_scroller_region_get(m_list, nullptr, &now.top, nullptr, nullptr);
    elm_scroller_child_size_get(m_list, nullptr, &now.height);
    // To look where a row is changes the canvas: done each time, it would be drawn without an end.
    if (now == m_seen)
    {
        return;
    }
    m_seen = now;
    for (void* item : now.rows)
    {
        auto* row = static_cast<Elm_Object_Item*>(item);
        const Extent place = ExtentOf(elm_object_item_track(row));
        elm_object_item_untrack(row);
        m_Show(row, now.view.Holds(place) || place.Height() > now.view.Height());
    }
}

void WholeRows::m_Show(Elm_Object_Item* row, bool whole)
{
    const bool changed = whole ? m_hidden.erase(row) > 0 : m_hidden.insert(row).second;
    if (changed)
    {
        elm_object_item_signal_emit(row, whole ? "veskar,whole" : "veskar,cut", "veskar");
    }
}

} // namespace veskar
