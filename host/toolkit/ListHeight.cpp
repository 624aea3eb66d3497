#include "ListHeight.h"

#include "SizeHints.h"
#include "ThemeSizes.h"
#include "Widgets.h"

#include <algorithm>

namespace veskar
{
namespace
{

/** Cells have a width of their own; a text needs no more than to be read. */
int RowWidth(const Evas_Object* list)
{
    const Elm_Object_Item* row = elm_genlist_first_item_get(list);
    if (row == nullptr)
    {
        return 0;
    }
    const bool isText = elm_genlist_item_item_class_get(row)->func.text_get != nullptr;
    return ThemeSize(list, isText ? "text_width" : "cells_width");
}

/** The theme shows a whole number of pitches, so a row of several lines needs the next one. */
int InPitches(int height, int pitch)
{
    const int rounding = pitch / 8; // of the sum, on a screen that is not 1920x1080
    const int pitches = pitch > 0 ? (height - rounding + pitch - 1) / pitch : 0;
    return std::max(height, pitches * pitch);
}

} // namespace

ListHeight::ListHeight(Evas_Object* list)
    : m_list(list), m_shown(list, EVAS_CALLBACK_SHOW, CallEvent<&ListHeight::m_OnShown>, this),
      m_rowRealised(list, "realized", CallSmart<&ListHeight::m_OnRowRealised>, this)
{
}

void ListHeight::m_OnShown()
{
    // Only rows in view are realised, and a program may wait for all of them before it gives the list the focus.
    evas_object_resize(m_list, ThemeSize(m_list, "view_width"), ThemeSize(m_list, "view_height"));
    m_Ask();
}

void ListHeight::m_OnRowRealised(void* row)
{
    // Only a realised row has its real height, and it may have several lines.
    m_Ask();
    // What drew another row before may draw this one.
    const bool isLast = row == elm_genlist_last_item_get(m_list);
    elm_object_item_signal_emit(static_cast<Elm_Object_Item*>(row), isLast ? "veskar,last" : "veskar,inner", "veskar");
}

void ListHeight::m_Ask()
{
    const int pitch = ThemeSize(m_list, "row_height");
    const int rows = static_cast<int>(elm_genlist_items_count(m_list)) * pitch;
    int realised = 0;
    elm_scroller_child_size_get(m_list, nullptr, &realised);
    const int height = std::min(std::max(rows, InPitches(realised, pitch)) - 2 * ThemeSize(m_list, "row_room"),
                                ThemeSize(m_list, "view_height"));
    SetOuterLeastSize(m_list, {RowWidth(m_list), height});
}

} // namespace veskar
