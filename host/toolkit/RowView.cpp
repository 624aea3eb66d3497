#include "RowView.h"

#include <algorithm>
#include <optional>

namespace veskar
{
namespace
{

/** What the viewer sees of the list, and where the row is. */
struct View
{
    int top;
    int height;
    int last; // the top of the view when it shows the end
    int rowTop;
    int rowBottom;

    bool HoldsRow() const { return rowBottom - rowTop <= height; }
    int WithRowEnd() const { return rowBottom - height; }
};

/** None as long as the row is not drawn. */
std::optional<View> ViewOf(Evas_Object* list, Elm_Object_Item* row)
{
    // The rows stand where they stood before the last key until then.
    evas_smart_objects_calculate(evas_object_evas_get(list));
    Evas_Object* place = elm_object_item_track(row);
    if (place == nullptr)
    {
        return std::nullopt;
    }
    int rowY = 0;
    int rowHeight = 0;
    evas_object_geometry_get(place, nullptr, &rowY, nullptr, &rowHeight);
    elm_object_item_untrack(row);

    int listY = 0;
    int paneY = 0;
    evas_object_geometry_get(list, nullptr, &listY, nullptr, nullptr);
    edje_object_part_geometry_get(elm_layout_edje_get(list), "elm.swallow.content", nullptr, &paneY, nullptr, nullptr);
    rowY -= listY + paneY;
    View view{};
    elm_scroller_region_get(list, nullptr, &view.top, nullptr, &view.height);
    elm_scroller_child_size_get(list, nullptr, &view.last);
    view.last = std::max(view.last - view.height, 0);
    view.rowTop = view.top + rowY;
    view.rowBottom = view.top + rowY + rowHeight;
    return view;
}

/** False when the view stays where it is. */
bool ScrollTo(Evas_Object* list, const View& view, int top)
{
    top = std::clamp(top, 0, view.last);
    if (top == view.top)
    {
        return false;
    }
    elm_scroller_region_show(list, 0, top, 1, view.height);
    return true;
}

} // namespace

Elm_Object_Item* Neighbour(Elm_Object_Item* row, Way way)
{
    return way == Way::Up ? elm_genlist_item_prev_get(row) : elm_genlist_item_next_get(row);
}

void ShowRow(Evas_Object* list, Elm_Object_Item* row, Way way)
{
    if (Elm_Object_Item* ahead = Neighbour(row, way))
    {
        elm_genlist_item_show(ahead, ELM_GENLIST_ITEM_SCROLLTO_IN);
    }
    // After the other one: where there is room for one only, it is this one's.
    elm_genlist_item_show(row, ELM_GENLIST_ITEM_SCROLLTO_IN);
    const std::optional<View> view = ViewOf(list, row);
    if (!view)
    {
        return;
    }
    if (view->HoldsRow())
    {
        ScrollTo(list, *view, std::clamp(view->top, view->WithRowEnd(), view->rowTop));
    }
    else
    {
        ScrollTo(list, *view, way == Way::Down ? view->rowTop : view->WithRowEnd());
    }
}

bool ScrollWithin(Evas_Object* list, Elm_Object_Item* row, Way way)
{
    const std::optional<View> view = ViewOf(list, row);
    if (!view || view->HoldsRow())
    {
        return false;
    }
    // Some of what was read stays in view, so that the viewer finds his line again.
    const int step = view->height * 3 / 4;
    if (way == Way::Up)
    {
        return view->rowTop < view->top && ScrollTo(list, *view, std::max(view->top - step, view->rowTop));
    }
    return view->WithRowEnd() > view->top && ScrollTo(list, *view, std::min(view->top + step, view->WithRowEnd()));
}

} // namespace veskar
