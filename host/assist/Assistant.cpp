#include "DisplayModes.h"
#include "VoiceGuide.h"
#include "ea.h"

#include <Edje.h>

namespace
{

constexpr double DESIGN_SCALE = 2.0;

/**
 * Labels mix texts that bring sizes of their own, scaled already, with texts that leave the size to the theme; so the
 * theme scales neither, and its own sizes are scaled here: in per cent, which negative sizes are to Edje.
 */
void ScaleLabels()
{
    const double percent = 100.0 * elm_config_scale_get() / DESIGN_SCALE;
    for (const char* textClass : {"veskar/message", "veskar/cell"})
    {
        edje_text_class_set(textClass, "Sans:style=Regular", static_cast<Evas_Font_Size>(-percent));
    }
}

} // namespace

void ea_init(void)
{
    ScaleLabels();
    // Never destroyed: it lives as long as the toolkit, which has no moment of its own to end it.
    static const auto* const modes = new veskar::DisplayModes;
    static_cast<void>(modes);
    veskar::VoiceGuide::TheOne().FollowFocus();
}
