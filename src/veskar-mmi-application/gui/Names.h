/** The names of the theme and of the remote control that several screens use. */
#pragma once

#include <string_view>

namespace VESKAR_APP
{

constexpr const char* POPUP_STYLE = "C_PopupBasic_WhiteBottom";
constexpr const char* LARGE_POPUP_STYLE = "C_PopupBasic_WhiteBottomLarge";
constexpr const char* LABEL_STYLE = "popup/c_popup_bottom";
constexpr const char* SCROLLER_STYLE = "C_Scrollbar_White"; // of lists and text pages
constexpr const char* TEXT_ROW_STYLE = "C_TextItem_WhiteSingleline01";

/** The text block of a label. */
constexpr const char* TEXT_PART = "elm.text";

constexpr std::string_view KEY_UP = "Up";
constexpr std::string_view KEY_DOWN = "Down";

} // namespace VESKAR_APP
