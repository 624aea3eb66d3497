#include "NumberPad.h"

#include "Log.h"
#include "RemoteClient.h"
#include "RemoteSocketPath.h"
#include "SettingKeys.h"
#include "SettingsStore.h"

#include <Ecore_Input.h>
#include <exception>
#include <string>

namespace veskar
{

namespace
{

/** Tells the TV whether the pad is on the screen. Should this process be killed, the framework takes it back. */
void SetShown(bool shown)
{
    if (const auto error = WriteSetting(NUMBER_PAD_SHOWN_KEY, shown ? "1" : "0"))
    {
        NUMPAD_ERROR("%s cannot be set: %s", NUMBER_PAD_SHOWN_KEY, error.message().c_str());
    }
}

} // namespace

NumberPad::NumberPad(bool withBackSpace, PadWindow& window, std::function<void()> unwanted)
    : m_unwanted(std::move(unwanted)), m_keys(withBackSpace), m_window(window),
      m_keyDown(ecore_event_handler_add(ECORE_EVENT_KEY_DOWN, s_OnKeyDown, this)),
      m_keyUp(ecore_event_handler_add(ECORE_EVENT_KEY_UP, s_OnKeyUp, this))
{
    m_window.Show(m_keys, [this] { m_Appeared(); });
}

NumberPad::~NumberPad()
{
    m_window.Hide();
    m_heldKeys.reset();
    SetShown(false);
}

void NumberPad::m_Appeared()
{
    m_heldKeys.emplace(m_window.Window());
    SetShown(true);
}

void NumberPad::m_KeyDown(std::string_view key)
{
    if (key == "Up")
    {
        m_Move(Direction::Up);
    }
    else if (key == "Down")
    {
        m_Move(Direction::Down);
    }
    else if (key == "Left")
    {
        m_Move(Direction::Left);
    }
    else if (key == "Right")
    {
        m_Move(Direction::Right);
    }
    else if (key == "Return" && !m_returnIsDown)
    {
        m_returnIsDown = true; // the toolkit repeats a key that is held, and a PIN takes each digit once
        m_TypeCurrent();
    }
    else if (key == "XF86Back")
    {
        m_unwanted();
    }
}

void NumberPad::m_Move(Direction direction)
{
    m_keys.Move(direction);
    m_window.SetCurrent(m_keys.Current());
}

void NumberPad::m_TypeCurrent()
{
    try
    {
        RemoteClient(RemoteSocketPath()).Ask(std::string("press ") + m_keys.Places()[m_keys.Current()].key);
    }
    catch (const std::exception& error)
    {
        NUMPAD_ERROR("a key cannot be typed: %s", error.what());
    }
}

Eina_Bool NumberPad::s_OnKeyDown(void* data, int, void* event)
{
    static_cast<NumberPad*>(data)->m_KeyDown(static_cast<Ecore_Event_Key*>(event)->key);
    return ECORE_CALLBACK_PASS_ON;
}

Eina_Bool NumberPad::s_OnKeyUp(void* data, int, void* event)
{
    if (static_cast<Ecore_Event_Key*>(event)->key == std::string_view("Return"))
    {
        static_cast<NumberPad*>(data)->m_returnIsDown = false;
    }
    return ECORE_CALLBACK_PASS_ON;
}

} // namespace veskar
