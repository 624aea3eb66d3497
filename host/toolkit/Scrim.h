#pragma once

#include "Callback.h"

namespace veskar
{

/**
 * Keeps the scrim of the theme in place where one screen replaces another: it comes only together with the first one,
 * or the programme would light up in between.
 */
class Scrim
{
public:
    /** `popup` is the screen. */
    explicit Scrim(Evas_Object* popup);
    ~Scrim();

    Scrim(const Scrim&) = delete;
    Scrim& operator=(const Scrim&) = delete;

private:
    void m_OnShown();
    void m_OnHidden();

    Evas_Object* m_popup;
    EventCallback m_shown;
    EventCallback m_hidden;
};

} // namespace veskar
