#include "ButtonFocus.h"

#include "Widgets.h"

#include <initializer_list>

namespace veskar
{
namespace
{

int TopOf(const Evas_Object* object)
{
    int y = 0;
    evas_object_geometry_get(object, nullptr, &y, nullptr, nullptr);
    return y;
}

/** The nearest visible button below `from`, or null. */
Evas_Object* ButtonBelow(const Evas_Object* popup, const Evas_Object* from)
{
    for (const char* part : {"button1", "button2", "button3"})
    {
        Evas_Object* button = elm_object_part_content_get(popup, part);
        if (button != nullptr && evas_object_visible_get(button) && TopOf(button) > TopOf(from))
        {
            return button;
        }
    }
    return nullptr;
}

} // namespace

ButtonFocus::ButtonFocus(Evas_Object* popup) : m_popup(popup)
{
    elm_object_event_callback_add(m_popup, s_OnKey, this);
}

ButtonFocus::~ButtonFocus()
{
    elm_object_event_callback_del(m_popup, s_OnKey, this);
}

Eina_Bool ButtonFocus::s_OnKey(void* /*data*/, Evas_Object* popup, Evas_Object* source, Evas_Callback_Type type,
                               void* eventInfo)
{
    if (type != EVAS_CALLBACK_KEY_DOWN || !Is(source, "elm_button") ||
        std::strcmp(static_cast<Evas_Event_Key_Down*>(eventInfo)->key, "Down") != 0)
    {
        return EINA_FALSE;
    }
    if (Evas_Object* below = ButtonBelow(popup, source))
    {
        elm_object_focus_set(below, EINA_TRUE);
    }
    return EINA_TRUE;
}

} // namespace veskar
