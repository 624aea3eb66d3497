#include "KeyGate.h"

#include "OwnScreen.h"
#include "SettingKeys.h"
#include "XkbOffset.h"

#include <Ecore_Input.h>
#include <vconf.h>

namespace veskar
{

namespace
{

// A person needs longer to see a screen and to decide. A second press of the same key, by habit or by a worn button, is
// there sooner.
constexpr int DELAY_WHEN_UNSET = 200;

KeyGuard::Time Delay()
{
    int milliseconds = 0;
    const bool isSet = vconf_get_int(KEY_GUARD_KEY, &milliseconds) == 0 && milliseconds >= 0;
    return KeyGuard::Time(isSet ? milliseconds : DELAY_WHEN_UNSET);
}

Eina_Bool PassOn(bool wanted)
{
    return wanted ? ECORE_CALLBACK_PASS_ON : ECORE_CALLBACK_DONE;
}

} // namespace

KeyGate::KeyGate(Decided decided)
    : m_decided(std::move(decided)), m_down(ecore_event_handler_prepend(ECORE_EVENT_KEY_DOWN, s_OnDown, this)),
      m_up(ecore_event_handler_prepend(ECORE_EVENT_KEY_UP, s_OnUp, this))
{
}

KeyGate::~KeyGate()
{
    ecore_event_handler_del(m_down);
    ecore_event_handler_del(m_up);
}

Eina_Bool KeyGate::s_OnDown(void* self, int, void* event)
{
    const auto* key = static_cast<const Ecore_Event_Key*>(event);
    const KeyGuard::Press press{key->keyname, key->keycode, key->timestamp};
    const bool taken = OwnScreen::Instance().Keys().Lets(press, OwnScreen::Now(), Delay());
    static_cast<KeyGate*>(self)->m_decided(key->keycode - XKB_OFFSET, taken);
    return PassOn(taken);
}

Eina_Bool KeyGate::s_OnUp(void*, int, void* event)
{
    return PassOn(OwnScreen::Instance().Keys().LetsRelease(static_cast<const Ecore_Event_Key*>(event)->keycode));
}

} // namespace veskar
