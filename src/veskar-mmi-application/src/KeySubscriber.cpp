#include "KeySubscriber.h"

#include "EflGuard.h"
#include "Log.h"
#include "VesKarKeyRouter.h"

#include <iterator>
#include <utility>

#include <Ecore_Evas.h>
#include <ecore_wayland.h>
#include <key_router.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* EXIT_KEY = "XF86Exit";

constexpr const char* NUMBER_KEYS[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};

constexpr const char* NAVIGATION_KEYS[] = {"XF86Exit", "XF86Back", "Return", "Up", "Left", "Right", "Down"};

constexpr const char* PVR_KEYS[] = {"XF86AudioRewind", "XF86AudioPause", "XF86AudioNext", "XF86AudioRecord",
                                    "XF86AudioPlay",   "XF86AudioStop",  "XF86PlayBack",  "XF86More"};

// Some names are here twice, which is harmless. The formatter would give each name a line of its own.
// clang-format off
constexpr const char* CHANNEL_CHANGE_KEYS[] = {
    "XF86ChannelList", "XF86RaiseChannel", "XF86LowerChannel", "XF86PreviousChannel", "XF86SysMenu",
    "XF86ChannelGuide", "XF86Search", "XF86SimpleMenu", "XF86Info", "XF86Display", "XF86Hdmi", "XF86Home",
    "XF86PIP", "XF86PictureMode", "XF86UsbHub", "XF86PictureSize", "XF86FavoriteChannel", "XF86ChannelList",
    "XF86ChannelGuide", "XF86Game", "XF86PreviousChannel", "XF86FavoriteChannel", "XF86BTContentsBar", "XF86Back",
    "XF863D", "XF86TVSNS", "XF86WIFIPairing", "XF86BTVoice", "XF86Recommend", "XF86AspectRatio169", "XF86MTS",
    "XF86FactoryMode", "XF86SoundMode", "XF86Apps", "XF86TTXMIX", "XF86Caption", "XF86SRSSXT", "XF86EManual",
    "XF86UsbHub", "XF86More", "XF86TV", "XF86DTV", "XF86ChannelAddDel", "XF86PanelDown", "XF86WWW",
    "XF86BTColorMecha", "XF86StillPicture", "XF86BTPairing", "XF86BTHotkey", "XF86BTDevice", "XF86BTContentsBar",
    "XF86PIPChannelUp", "XF86PIPChannelDown", "XF86Antena", "XF86ChannelAutoTune", "XF86PanelEnter", "XF86MBRLink",
    "XF86PanelUp", "XF86WheelLeftKey", "XF86WheelRightKey", "XF86PanelExit", "XF86Recommend", "XF86NumberPad",
    "XF86DualView", "XF86BTApps", "XF86Subtitle", "XF86DVR", "XF86Camera", "XF86ZoomIn", "XF86PanelPlus",
    "XF86PanelMinus", "XF86SoccerMode", "XF86Amazon", "XF86AudioDescription", "XF86Netflix", "XF86PIP",
    "XF86Pellandor", "XF86HDMICEC", "XF86LeftPage", "XF86RightPage"};
// clang-format on

wl_display* ConnectedDisplay()
{
    const MainLoopSection section;
    Ecore_Wl2_Display* display = ecore_wl2_connected_display_get(nullptr);
    return display == nullptr ? nullptr : ecore_wl2_display_get(display);
}

std::pair<wl_registry*, wl_seat*> RegistryAndSeat()
{
    const MainLoopSection section;
    Ecore_Wl2_Display* display = ecore_wl2_connected_display_get(nullptr);
    return {ecore_wl2_display_registry_get(display),
            ecore_wl2_input_seat_get(ecore_wl2_input_default_input_get(display))};
}

wl_surface* SurfaceOf(Evas_Object* window)
{
    const MainLoopSection section;
    Ecore_Evas* canvas = ecore_evas_ecore_evas_get(evas_object_evas_get(window));
    Ecore_Wl2_Window* wlWindow = ecore_evas_wayland2_window_get(canvas);
    return wlWindow == nullptr ? nullptr : ecore_wl2_window_surface_get(wlWindow);
}

_KeyList KeyListOf(const char* key, int mode)
{
    _KeyList list;
    KeyRouter_Reset_KeyList(&list);
    KeyRouter_Add_Key(key, mode, &list);
    return list;
}

_KeyList RegisteredKeyList(const std::vector<const char*>& keys)
{
    _KeyList list;
    KeyRouter_Reset_KeyList(&list);
    for (const char* key : keys)
    {
        KeyRouter_Add_Key(key, KEYROUTER_MODE_REGISTERED, &list);
    }
    return list;
}

void m_AddNavigationKeys(_KeyList& list)
{
    for (const char* key : NAVIGATION_KEYS)
    {
        KeyRouter_Add_Key(key, KEYROUTER_MODE_REGISTERED, &list);
    }
}

_KeyList NavigationKeyList()
{
    _KeyList list = RegisteredKeyList({});
    m_AddNavigationKeys(list);
    return list;
}

/** Releases an earlier registration of the keys first. */
void RegisterKeyList(wl_surface* surface, const _KeyList& list)
{
    if (KeyRouter_UnSet_KeyList(surface, &list) == 0)
    {
        LOG_WARN("Unable to clear keylist");
        return;
    }
    if (KeyRouter_Set_KeyList(surface, &list) == 0)
    {
        LOG_WARN("Failed to set Key List");
    }
}

void UnregisterKeyList(wl_surface* surface, const _KeyList& list)
{
    if (KeyRouter_UnSet_KeyList(surface, &list) == 0)
    {
        LOG_WARN("Failed to unset Key List");
    }
}

} // namespace

KeySubscriber::KeySubscriber(Evas_Object* window)
    : m_window(window), m_numberKeys(std::begin(NUMBER_KEYS), std::end(NUMBER_KEYS)),
      m_channelChangeKeys(std::begin(CHANNEL_CHANGE_KEYS), std::end(CHANNEL_CHANGE_KEYS)),
      m_pvrKeys(std::begin(PVR_KEYS), std::end(PVR_KEYS)), m_wlDisplay(nullptr), m_surface(nullptr)
{
    LOG_ENTRY_INFO();
    m_wlDisplay = ConnectedDisplay();
    // The toolkit must not be asked for the surface of a window that is not on a Wayland display.
    m_surface = m_wlDisplay == nullptr || m_window == nullptr ? nullptr : SurfaceOf(m_window);
    EFL_GUARD(ecore_wl2_sync);

    if (m_wlDisplay == nullptr)
    {
        LOG_WARN("Failed to get display and register Grab Keys");
        return;
    }
    RegisterKeys();
}

KeySubscriber::~KeySubscriber()
{
    UnlockExitKey();
    UnlockChannelChangeKeys();
    UnlockNavigationKeys();
    UnlockNumberKeys();
    UnlockPVRKeys();
    KeyRouter_Finalize();
}

void KeySubscriber::RegisterKeys()
{
    const int id = VesKarKeyRouter_GetId();
    if (id == -1)
    {
        LOG_WARN("Failed to get key router id");
        return;
    }

    const auto [registry, seat] = RegistryAndSeat();
    if (KeyRouter_Initialize(m_wlDisplay, registry, seat, static_cast<unsigned int>(id)) == 0)
    {
        LOG_WARN("Failed to initialise KeyRouter interface");
    }
}

void KeySubscriber::m_GrabKey(const char* key)
{
    _KeyList list = KeyListOf(key, KEYROUTER_MODE_EXCLUSIVE);
    if (KeyRouter_Set_KeyList(m_surface, &list) != 0)
    {
        return;
    }
    // Another client holds the key exclusively. This window may still get it while it is the topmost one.
    KeyRouter_Remove_Key(key, KEYROUTER_MODE_EXCLUSIVE, &list);
    KeyRouter_Add_Key(key, KEYROUTER_MODE_TOPMOST, &list);
    if (KeyRouter_Set_KeyList(m_surface, &list) == 0)
    {
        LOG_WARN("Failed to register for grab keys");
    }
}

void KeySubscriber::m_UngrabKey(const char* key)
{
    _KeyList list = KeyListOf(key, KEYROUTER_MODE_EXCLUSIVE);
    if (KeyRouter_UnSet_KeyList(m_surface, &list) != 0)
    {
        return;
    }
    KeyRouter_Remove_Key(key, KEYROUTER_MODE_EXCLUSIVE, &list);
    KeyRouter_Add_Key(key, KEYROUTER_MODE_TOPMOST, &list);
    if (KeyRouter_UnSet_KeyList(m_surface, &list) == 0)
    {
        LOG_WARN("Failed to unregister to ungrab keys");
    }
}

void KeySubscriber::LockNumberKeys()
{
    LOG_ENTRY();
    for (const char* key : m_numberKeys)
    {
        m_GrabKey(key);
    }
}

void KeySubscriber::UnlockNumberKeys()
{
    LOG_ENTRY();
    for (const char* key : m_numberKeys)
    {
        m_UngrabKey(key);
    }
}

void KeySubscriber::LockExitKey()
{
    LOG_ENTRY();
    m_GrabKey(EXIT_KEY);
}

void KeySubscriber::UnlockExitKey()
{
    LOG_ENTRY();
    m_UngrabKey(EXIT_KEY);
}

void KeySubscriber::LockChannelChangeKeys()
{
    LOG_ENTRY();
    for (const char* key : m_channelChangeKeys)
    {
        m_GrabKey(key);
    }
}

void KeySubscriber::UnlockChannelChangeKeys()
{
    LOG_ENTRY();
    for (const char* key : m_channelChangeKeys)
    {
        m_UngrabKey(key);
    }
}

void KeySubscriber::LockNavigationKeys()
{
    LOG_ENTRY();
    if (m_wlDisplay == nullptr)
    {
        LOG_WARN("Display not set");
        return;
    }
    RegisterKeyList(m_surface, NavigationKeyList());
}

void KeySubscriber::UnlockNavigationKeys()
{
    LOG_ENTRY();
    UnregisterKeyList(m_surface, NavigationKeyList());
}

void KeySubscriber::LockPVRKeys()
{
    LOG_ENTRY_INFO();
    RegisterKeyList(m_surface, RegisteredKeyList(m_pvrKeys));
}

void KeySubscriber::UnlockPVRKeys()
{
    LOG_ENTRY_INFO();
    UnregisterKeyList(m_surface, RegisteredKeyList(m_pvrKeys));
}

} // namespace VESKAR_APP
