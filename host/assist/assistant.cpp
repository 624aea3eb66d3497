#include "ea.h"

#include <Edje.h>

namespace
{

constexpr double designScale = 2.0;

/**
 * The theme cannot scale the text of a message: it shares a style with lines whose texts bring sizes that are scaled
 * already. So its size is a text class, set here in per cent of the design's size.
 */
void ScaleMessageText()
{
    const double percent = 100.0 * elm_config_scale_get() / designScale;
    edje_text_class_set("veskar/message", "Sans:style=Regular", static_cast<Evas_Font_Size>(-percent));
}

} // namespace

void ea_init(void)
{
    ScaleMessageText();
}
