#pragma once

#include "Callback.h"

namespace veskar
{

/**
 * Makes a list ask for the height of its rows, up to that of the theme's view, and for the width of rows of cells. The
 * stock list asks for nothing and gets what is left, which hides rows on one screen and stands half empty on another.
 * The theme hears which row is the last.
 */
class ListHeight
{
public:
    explicit ListHeight(Evas_Object* list);

private:
    void m_OnShown();
    void m_OnRowRealised(void* row);
    void m_Ask();

    Evas_Object* m_list;
    EventCallback m_shown;
    SmartCallback m_rowRealised;
};

} // namespace veskar
