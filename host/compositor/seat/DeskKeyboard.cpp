#include "DeskKeyboard.h"

#include <algorithm>
#include <iomanip>
#include <iterator>
#include <linux/input-event-codes.h>
#include <sstream>

namespace veskar
{

namespace
{

struct Typed
{
    uint32_t code;
    const char* label; // null: the help has no line of its own for it
    const char* key;
};

constexpr Typed TYPED[] = {
    {KEY_UP, "arrow up", "Up"},
    {KEY_DOWN, "arrow down", "Down"},
    {KEY_LEFT, "arrow left", "Left"},
    {KEY_RIGHT, "arrow right", "Right"},
    {KEY_ENTER, "Enter", "Return"},
    {KEY_KPENTER, nullptr, "Return"},
    {KEY_ESC, "Escape", "XF86Back"},
    {KEY_Q, "q", "XF86Exit"},
    {KEY_M, "m", "XF86More"},
    {KEY_BACKSPACE, "BackSpace", "BackSpace"},
    {KEY_0, nullptr, "0"},
    {KEY_1, nullptr, "1"},
    {KEY_2, nullptr, "2"},
    {KEY_3, nullptr, "3"},
    {KEY_4, nullptr, "4"},
    {KEY_5, nullptr, "5"},
    {KEY_6, nullptr, "6"},
    {KEY_7, nullptr, "7"},
    {KEY_8, nullptr, "8"},
    {KEY_9, nullptr, "9"},
    {KEY_KP0, nullptr, "0"},
    {KEY_KP1, nullptr, "1"},
    {KEY_KP2, nullptr, "2"},
    {KEY_KP3, nullptr, "3"},
    {KEY_KP4, nullptr, "4"},
    {KEY_KP5, nullptr, "5"},
    {KEY_KP6, nullptr, "6"},
    {KEY_KP7, nullptr, "7"},
    {KEY_KP8, nullptr, "8"},
    {KEY_KP9, nullptr, "9"},
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

const Key* DeskKey(uint32_t code)
{
    const auto* found =
        std::find_if(std::begin(TYPED), std::end(TYPED), [code](const Typed& typed) { return typed.code == code; });
    return found == std::end(TYPED) ? nullptr : KeyByName(found->key);
}

std::string DeskKeyboardHelp()
{
    std::ostringstream help;
    help << "The keyboard plays the remote control:\n"
         << std::left << std::setw(16) << "  digits"
         << "the same\n";
    for (const Typed& typed : TYPED)
    {
        if (typed.label != nullptr)
        {
            help << "  " << std::setw(14) << typed.label << typed.key << "\n";
        }
    }
    return help.str();
}

} // namespace veskar
