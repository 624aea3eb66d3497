#include "KeyTable.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <strings.h>
#include <xkbcommon/xkbcommon.h>

namespace veskar
{

namespace
{

constexpr uint32_t FIRST_CODE = 256;
// Keymaps and the toolkit count from the first code that X11 allows.
constexpr uint32_t XKB_OFFSET = 8;
// Symbols of our own for the names that xkbcommon does not know, in the vendors' range.
constexpr uint32_t FIRST_OWN_SYMBOL = 0x10090000;

// Append only: a key's place here is its code.
constexpr const char* NAMES[] = {
    // Moving, choosing, typing
    "Up", "Down", "Left", "Right", "Return", "BackSpace", "Escape", "Tab", "0", "1", "2", "3", "4", "5", "6", "7", "8",
    "9",
    // On every remote control
    "XF86Back", "XF86Exit", "XF86More", "XF86Home", "XF86SysMenu", "XF86SimpleMenu", "XF86Info", "XF86Display",
    "XF86Search", "XF86PowerOff", "XF86AudioRaiseVolume", "XF86AudioLowerVolume", "XF86AudioMute", "XF86Red",
    "XF86Green", "XF86Yellow", "XF86Blue", "XF86NumberPad",
    // Recording and playing
    "XF86AudioRewind", "XF86AudioForward", "XF86AudioPause", "XF86AudioNext", "XF86AudioPrev", "XF86AudioRecord",
    "XF86AudioPlay", "XF86AudioStop", "XF86PlayBack",
    // Channels
    "XF86ChannelList", "XF86RaiseChannel", "XF86LowerChannel", "XF86PreviousChannel", "XF86ChannelGuide",
    "XF86FavoriteChannel", "XF86ChannelAddDel", "XF86ChannelAutoTune", "XF86Antena", "XF86TV", "XF86DTV", "XF86DVR",
    "XF86PIP", "XF86PIPChannelUp", "XF86PIPChannelDown", "XF86DualView", "XF86MTS", "XF86SoccerMode",
    // Picture, sound, texts
    "XF86PictureMode", "XF86PictureSize", "XF86AspectRatio169", "XF86StillPicture", "XF86ZoomIn", "XF863D",
    "XF86SoundMode", "XF86SRSSXT", "XF86AudioDescription", "XF86Caption", "XF86Subtitle", "XF86TTXMIX", "XF86LeftPage",
    "XF86RightPage", "XF86EManual",
    // Sources and devices
    "XF86Hdmi", "XF86HDMICEC", "XF86UsbHub", "XF86Camera", "XF86WIFIPairing", "XF86BTVoice", "XF86BTContentsBar",
    "XF86BTColorMecha", "XF86BTPairing", "XF86BTHotkey", "XF86BTDevice", "XF86BTApps", "XF86MBRLink",
    // Applications and services
    "XF86Apps", "XF86Game", "XF86TVSNS", "XF86Recommend", "XF86WWW", "XF86Amazon", "XF86Netflix", "XF86Pellandor",
    // The panel, the wheel, the factory
    "XF86PanelUp", "XF86PanelDown", "XF86PanelPlus", "XF86PanelMinus", "XF86PanelEnter", "XF86PanelExit",
    "XF86WheelLeftKey", "XF86WheelRightKey", "XF86FactoryMode"};

uint32_t SymbolOf(const char* name, uint32_t index)
{
    const xkb_keysym_t known = xkb_keysym_from_name(name, XKB_KEYSYM_NO_FLAGS);
    return known != XKB_KEY_NoSymbol ? known : FIRST_OWN_SYMBOL + index;
}

std::vector<Key> MakeKeys()
{
    std::vector<Key> keys;
    keys.reserve(std::size(NAMES));
    for (const char* name : NAMES)
    {
        const auto index = static_cast<uint32_t>(keys.size());
        keys.push_back({name, FIRST_CODE + index, SymbolOf(name, index)});
    }
    return keys;
}

bool SameIgnoringCase(const std::string& left, const char* right)
{
    return strcasecmp(left.c_str(), right) == 0;
}

std::string KeycodeLine(const Key& key)
{
    return "<K" + std::to_string(key.code) + "> = " + std::to_string(key.code + XKB_OFFSET) + ";\n";
}

std::string SymbolLine(const Key& key)
{
    char symbol[16];
    std::snprintf(symbol, sizeof symbol, "0x%x", key.symbol);
    return "key <K" + std::to_string(key.code) + "> { [ " + symbol + " ] };\n";
}

} // namespace

const std::vector<Key>& AllKeys()
{
    static const std::vector<Key> keys = MakeKeys();
    return keys;
}

const Key* KeyByCode(uint32_t code)
{
    const std::vector<Key>& keys = AllKeys();
    return code < FIRST_CODE || code - FIRST_CODE >= keys.size() ? nullptr : &keys[code - FIRST_CODE];
}

const Key* KeyByName(std::string_view name)
{
    const std::vector<Key>& keys = AllKeys();
    const auto found = std::find_if(keys.begin(), keys.end(), [name](const Key& key) { return name == key.name; });
    return found == keys.end() ? nullptr : &*found;
}

const Key* KeyByShortName(std::string_view name)
{
    if (const Key* exact = KeyByName(name))
    {
        return exact;
    }
    for (const char* prefix : {"", "XF86", "XF86Audio"})
    {
        const std::string full = prefix + std::string(name);
        for (const Key& key : AllKeys())
        {
            if (SameIgnoringCase(full, key.name))
            {
                return &key;
            }
        }
    }
    return nullptr;
}

std::string KeymapText()
{
    std::string codes;
    std::string symbols;
    for (const Key& key : AllKeys())
    {
        codes += KeycodeLine(key);
        symbols += SymbolLine(key);
    }
    const uint32_t last = FIRST_CODE + static_cast<uint32_t>(AllKeys().size()) + XKB_OFFSET;
    return "xkb_keymap {\n"
           "xkb_keycodes \"remote\" {\nminimum = 8;\nmaximum = " +
           std::to_string(last) + ";\n" + codes +
           "};\n"
           "xkb_types \"remote\" { type \"ONE_LEVEL\" { modifiers = none; level_name[Level1] = \"Any\"; }; };\n"
           "xkb_compatibility \"remote\" { interpret.useModMapMods = AnyLevel; interpret.repeat = True; };\n"
           "xkb_symbols \"remote\" {\n" +
           symbols + "};\n};\n";
}

} // namespace veskar
