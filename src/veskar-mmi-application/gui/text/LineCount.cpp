#include "LineCount.h"

#include "EflGuard.h"
#include "Log.h"

namespace VESKAR_APP
{

int CountLines(const Evas_Object* object, const char* partName)
{
    LOG_INFO("m_GetTextBlockLineNumber part name:" << partName);
    // The toolkit answers null for no object too, but with a back trace in the log.
    Evas_Object* edje = object == nullptr ? nullptr : EFL_GUARD(elm_layout_edje_get, object);
    if (edje == nullptr)
    {
        LOG_ERROR("Get layout failed!");
        return 0;
    }
    const Evas_Object* textblock = EFL_GUARD(edje_object_part_object_get, edje, partName);
    if (textblock == nullptr)
    {
        LOG_ERROR("Text block is null!");
        return 0;
    }
    int lines = 0;
    int width = 0;
    int height = 0;
    while (
        EFL_GUARD(evas_object_textblock_line_number_geometry_get, textblock, lines, nullptr, nullptr, &width, &height))
    {
        ++lines;
        LOG_INFO("line num: " << lines << " nTextV: " << height << " nTextH:" << width);
    }
    return lines;
}

} // namespace VESKAR_APP
