#include "ThemeSizes.h"

#include <cmath>
#include <cstdlib>

namespace veskar
{

int ThemeSize(const Evas_Object* widget, const char* item)
{
    constexpr double DESIGN_SCALE = 2.0;
    const char* value = elm_layout_data_get(widget, item);
    return value != nullptr ? static_cast<int>(std::lround(std::atoi(value) * elm_config_scale_get() / DESIGN_SCALE))
                            : 0;
}

} // namespace veskar
