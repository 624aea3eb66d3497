#include "DeskKeyboard.h"

#include <algorithm>
#include <iterator>
#include <linux/input-event-codes.h>

namespace veskar
{

namespace
{

struct Typed
{
    uint32_t code;
    const char* label;
    const char* key;
};

constexpr Typed TYPED[] = {
    {KEY_UP, "arrow up", "Up"},
    {KEY_DOWN, "arrow down", "Down"},
    {KEY_LEFT, "arrow left", "Left"},
    {KEY_RIGHT, "arrow right", "Right"},
    {KEY_ENTER, "Enter", "Return"},
    {KEY_KPENTER, "keypad Enter", "Return"},
    {KEY_ESC, "Escape", "XF86Back"},
    {KEY_Q, "q", "XF86Exit"},
    {KEY_M, "m", "XF86More"},
    {KEY_BACKSPACE, "BackSpace", "BackSpace"},
    {KEY_0, "0", "0"},
    {KEY_1, "1", "1"},
    {KEY_2, "2", "2"},
    {KEY_3, "3", "3"},
    {KEY_4, "4", "4"},
    {KEY_5, "5", "5"},
    {KEY_6, "6", "6"},
    {KEY_7, "7", "7"},
    {KEY_8, "8", "8"},
    {KEY_9, "9", "9"},
    {KEY_KP0, "keypad 0", "0"},
    {KEY_KP1, "keypad 1", "1"},
    {KEY_KP2, "keypad 2", "2"},
    {KEY_KP3, "keypad 3", "3"},
    {KEY_KP4, "keypad 4", "4"},
    {KEY_KP5, "keypad 5", "5"},
    {KEY_KP6, "keypad 6", "6"},
    {KEY_KP7, "keypad 7", "7"},
    {KEY_KP8, "keypad 8", "8"},
    {KEY_KP9, "keypad 9", "9"},
    {KEY_P, "p", "XF86AudioPlay"},
    {KEY_SPACE, "space", "XF86AudioPause"},
    {KEY_S, "s", "XF86AudioStop"},
    {KEY_R, "r", "XF86AudioRecord"},
    {KEY_COMMA, ",", "XF86AudioRewind"},
    {KEY_DOT, ".", "XF86AudioNext"},
    {KEY_B, "b", "XF86PlayBack"},
    {KEY_H, "h", "XF86Home"},
    {KEY_I, "i", "XF86Info"},
    {KEY_G, "g", "XF86ChannelGuide"},
    {KEY_L, "l", "XF86ChannelList"},
    {KEY_N, "n", "XF86NumberPad"},
    {KEY_T, "t", "XF86Subtitle"},
    {KEY_PAGEUP, "Page Up", "XF86RaiseChannel"},
    {KEY_PAGEDOWN, "Page Down", "XF86LowerChannel"},
    {KEY_MINUS, "-", "XF86AudioLowerVolume"},
    {KEY_EQUAL, "=", "XF86AudioRaiseVolume"},
    {KEY_F1, "F1", "XF86Red"},
    {KEY_F2, "F2", "XF86Green"},
    {KEY_F3, "F3", "XF86Yellow"},
    {KEY_F4, "F4", "XF86Blue"},
};

} // namespace

const Key* deskKey(uint32_t code)
{
    const auto* found =
        std::find_if(std::begin(TYPED), std::end(TYPED), [code](const Typed& typed) { return typed.code == code; });
    return found == std::end(TYPED) ? nullptr : keyByName(found->key);
}

std::string deskKeyboardHelp()
{
    std::string help = "The keyboard plays the remote control:\n";
    for (const Typed& typed : TYPED)
    {
        const std::string label = typed.label;
        help += "  " + label + std::string(label.size() < 14 ? 14 - label.size() : 1, ' ') + typed.key + "\n";
    }
    return help;
}

} // namespace veskar
