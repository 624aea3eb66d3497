// Every list of the program: as high as its rows, and walked row by row.

#include "ListHeight.h"
#include "RowFocus.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Evas_Object* __real_elm_genlist_add(Evas_Object* parent);

    Evas_Object* __wrap_elm_genlist_add(Evas_Object* parent)
    {
        Evas_Object* list = __real_elm_genlist_add(parent);
        if (list != nullptr)
        {
            veskar::LiveWith<veskar::ListHeight>(list, list);
            veskar::LiveWith<veskar::RowFocus>(list, list);
        }
        return list;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
