#pragma once

namespace VESKAR_APP
{

/** The keys of a service request, and its signal types. UI types and menu positions: tables in ServiceProcessor.cpp. */
namespace RequestKeys
{

constexpr const char* SIGNAL_TYPE = "signal_type_key";
constexpr const char* SIGNAL_TVSERVICE = "signal_tvservice";
constexpr const char* SIGNAL_MENU_POS = "signal_menu_pos";
constexpr const char* SIGNAL_SEQUENCE = "sequence";

constexpr const char* UI_TYPE = "signal_tvservice_key";
constexpr const char* UI_ID = "ui_param_ui_id";
constexpr const char* SOURCE_ID = "ui_param_source_id";
constexpr const char* MENU_POS = "menu_pos_key";

constexpr const char* TITLE = "ui_param_title";
constexpr const char* SUB = "ui_param_sub";
constexpr const char* BOTTOM = "ui_param_bottom";
constexpr const char* TEXT = "ui_param_txt";
constexpr const char* BUTTONS = "ui_param_buttons";
constexpr const char* ENTRIES = "ui_param_entries";
constexpr const char* FORMAT = "ui_param_format";
constexpr const char* HEADER = "ui_param_header";
constexpr const char* NO_CLOSE = "ui_param_noclose";
constexpr const char* IMAGE_LOCATION = "ui_param_image_location";
constexpr const char* IMAGE_WIDTH = "ui_param_image_width";
constexpr const char* IMAGE_HEIGHT = "ui_param_image_height";
constexpr const char* IMAGE_LOCATIONS = "ui_param_multiple_image_locations";
constexpr const char* SELECTABLE = "ui_param_selectable";
constexpr const char* PERCENT = "ui_param_percent";
constexpr const char* PIN_LENGTH = "ui_param_pin_length";

} // namespace RequestKeys

} // namespace VESKAR_APP
