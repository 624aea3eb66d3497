#pragma once

#include "Callback.h"

namespace veskar
{

/**
 * Tells the theme's buttons which of a screen's places they are in, before they are measured: how wide the place is
 * decides on the lines of a label, and so on the height of its button.
 */
class ButtonWidth
{
public:
    /** `popup` is the screen. */
    explicit ButtonWidth(Evas_Object* popup);

private:
    void m_OnShown();

    Evas_Object* m_popup;
    EventCallback m_shown;
};

} // namespace veskar
