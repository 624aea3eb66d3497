#include "Window.h"

#include <Ecore_Evas.h>

namespace veskar
{

Evas_Object* FirstWindow()
{
    void* window = nullptr;
    void* canvas = nullptr;
    Eina_List* canvases = ecore_evas_ecore_evas_list_get();
    EINA_LIST_FREE(canvases, canvas)
    {
        if (!window)
        {
            // The toolkit notes the window on each canvas that belongs to one.
            window = ecore_evas_data_get(static_cast<Ecore_Evas*>(canvas), "elm_win");
        }
    }
    return static_cast<Evas_Object*>(window);
}

} // namespace veskar
