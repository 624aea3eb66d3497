#include "SizeHints.h"

namespace veskar
{

Size OuterLeastSize(const Evas_Object* object)
{
    const Eina_Size2D size = efl_gfx_hint_size_min_get(object);
    return {size.w, size.h};
}

void SetOuterLeastSize(Evas_Object* object, Size size)
{
    efl_gfx_hint_size_min_set(object, {size.width, size.height});
}

Size LeastSize(const Evas_Object* object)
{
    Size size;
    evas_object_size_hint_min_get(object, &size.width, &size.height);
    return size;
}

Size SizeOf(const Evas_Object* object)
{
    Size size;
    evas_object_geometry_get(object, nullptr, nullptr, &size.width, &size.height);
    return size;
}

} // namespace veskar
