#include "ButtonFocus.h"

#include "Widgets.h"

#include <algorithm>
#include <array>
#include <climits>
#include <string_view>

namespace veskar
{
namespace
{

constexpr std::array<const char*, 3> BUTTONS = {"button1", "button2", "button3"};
constexpr std::array<std::string_view, 4> ARROWS = {"Up", "Down", "Left", "Right"};

int TopOf(const Evas_Object* object)
{
    int y = 0;
    evas_object_geometry_get(object, nullptr, &y, nullptr, nullptr);
    return y;
}

std::string_view KeyOf(void* eventInfo)
{
    return static_cast<Evas_Event_Key_Down*>(eventInfo)->key;
}

bool IsArrow(void* eventInfo)
{
    return std::find(ARROWS.begin(), ARROWS.end(), KeyOf(eventInfo)) != ARROWS.end();
}

/** Gives the focus to the nearest visible button below this height, if there is one. */
void FocusBelow(const Evas_Object* popup, int top)
{
    for (const char* part : BUTTONS)
    {
        Evas_Object* button = elm_object_part_content_get(popup, part);
        if (button != nullptr && evas_object_visible_get(button) && TopOf(button) > top)
        {
            elm_object_focus_set(button, EINA_TRUE);
            return;
        }
    }
}

} // namespace

void AllowButtonFocus(Evas_Object* popup, bool allow)
{
    for (const char* part : BUTTONS)
    {
        if (Evas_Object* button = elm_object_part_content_get(popup, part))
        {
            elm_object_focus_allow_set(button, allow ? EINA_TRUE : EINA_FALSE);
        }
    }
}

ButtonFocus::ButtonFocus(Evas_Object* popup) : m_popup(popup)
{
    elm_object_event_callback_add(m_popup, s_OnWidgetEvent, this);
    evas_object_event_callback_add(m_popup, EVAS_CALLBACK_KEY_DOWN, s_OnKeyDown, this);
}

ButtonFocus::~ButtonFocus()
{
    evas_object_event_callback_del_full(m_popup, EVAS_CALLBACK_KEY_DOWN, s_OnKeyDown, this);
    elm_object_event_callback_del(m_popup, s_OnWidgetEvent, this);
}

Eina_Bool ButtonFocus::s_OnWidgetEvent(void* /*data*/, Evas_Object* popup, Evas_Object* source, Evas_Callback_Type type,
                                       void* eventInfo)
{
    if (type != EVAS_CALLBACK_KEY_DOWN || !IsArrow(eventInfo))
    {
        return EINA_FALSE;
    }
    AllowButtonFocus(popup, true);
    if (!Is(source, "elm_button") || KeyOf(eventInfo) != "Down")
    {
        return EINA_FALSE;
    }
    FocusBelow(popup, TopOf(source));
    return EINA_TRUE;
}

void ButtonFocus::s_OnKeyDown(void* /*data*/, Evas* /*canvas*/, Evas_Object* popup, void* eventInfo)
{
    if (elm_object_focused_object_get(popup) == nullptr && IsArrow(eventInfo))
    {
        AllowButtonFocus(popup, true);
        FocusBelow(popup, INT_MIN);
    }
}

} // namespace veskar
