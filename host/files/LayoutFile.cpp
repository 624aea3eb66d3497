// The application names the layout's place on a TV, which a desk's machine does not have.

#include <Elementary.h>

#include "SharedFile.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    Eina_Bool __real_elm_layout_file_set(Elm_Layout* layout, const char* file, const char* group);

    Eina_Bool __wrap_elm_layout_file_set(Elm_Layout* layout, const char* /*file*/, const char* group)
    {
        return __real_elm_layout_file_set(layout, veskar::SharedFile("VESKAR_LAYOUT", "kavro_layout.edj").c_str(),
                                          group);
    }
}
// NOLINTEND(bugprone-reserved-identifier)
