#include "ButtonWidth.h"

#include "Widgets.h"

#include <vector>

namespace veskar
{

ButtonWidth::ButtonWidth(Evas_Object* popup)
    : m_popup(popup), m_shown(popup, EVAS_CALLBACK_SHOW, CallEvent<&ButtonWidth::m_OnShown>, this)
{
}

void ButtonWidth::m_OnShown()
{
    std::vector<Evas_Object*> buttons;
    for (const char* part : {"button1", "button2", "button3"})
    {
        if (Evas_Object* button = elm_object_part_content_get(m_popup, part))
        {
            buttons.push_back(button);
        }
    }
    const char* place = IsAtSide(m_popup)     ? "veskar,button,side"
                        : buttons.size() == 3 ? "veskar,button,third"
                        : buttons.size() == 2 ? "veskar,button,half"
                                              : "veskar,button,alone";
    for (Evas_Object* button : buttons)
    {
        elm_object_signal_emit(button, place, "veskar");
        edje_object_message_signal_process(elm_layout_edje_get(button));
        elm_layout_sizing_eval(button);
    }
}

} // namespace veskar
