#include "ScreenKinds.h"

namespace veskar
{
namespace
{
using Fields = std::vector<Field>;

const Field s_title{"ui_param_title", "--title", Encoding::text, "Title line"};
const Field s_sub{"ui_param_sub", "--sub", Encoding::text, "Sub-title line"};
const Field s_bottom{"ui_param_bottom", "--bottom", Encoding::text, "Bottom line"};
const Field s_text{"ui_param_txt", "--text", Encoding::text, "The text itself"};
const Field s_buttons{"ui_param_buttons", "--button", Encoding::texts, "A button's label (repeatable)"};
const Field s_noClose{"ui_param_noclose", "--no-close", Encoding::flag, "Stays although no key is pressed"};
const Field s_entries{"ui_param_entries", "--entry", Encoding::texts, "A row (repeatable)"};
const Field s_entriesFrom{"ui_param_entries", "--entries-from", Encoding::textsFromFile,
                          "More rows, one a line; - is standard input"};
const Field s_format{"ui_param_format", "--format", Encoding::text, "L, R or C for each column"};
const Field s_header{"ui_param_header", "--header", Encoding::flag, "The first row is a header"};
const Field s_width{"ui_param_image_width", "--width", Encoding::number, "The image's width in design pixels"};
const Field s_height{"ui_param_image_height", "--height", Encoding::number, "The image's height in design pixels"};
const Field s_percent{"ui_param_percent", "--percent", Encoding::number, "How far it is, up to 100", 0, 100};
const Field s_image{"ui_param_image_location", "--image", Encoding::text, "The image's file"};
const Field s_images{"ui_param_multiple_image_locations", "--image", Encoding::texts,
                     "The image of a row, in the rows' order (repeatable)"};
const Field s_selectable{"ui_param_selectable", "--selectable", Encoding::flag, "A row can be chosen"};
const Field s_pinLength{"ui_param_pin_length", "--length", Encoding::number, "How many digits", 4};

const Fields s_listFields{s_title, s_sub, s_bottom, s_entries, s_entriesFrom, s_format, s_header, s_buttons};

Fields operator+(Fields fields, const Fields& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}
} // namespace

const std::vector<ScreenKind>& ScreenKinds()
{
    static const std::vector<ScreenKind> s_kinds{
        {"message", "ui_type_message", "A text with buttons", {s_title, s_sub, s_bottom, s_text, s_buttons, s_noClose}},
        {"list", "ui_type_list", "Rows to read", s_listFields},
        {"select", "ui_type_select", "Rows of which one is chosen", s_listFields},
        {"multi-list", "ui_type_multiple_list", "Rows of which several are marked", s_listFields},
        {"image",
         "ui_type_image",
         "A picture",
         {s_title, s_sub, s_bottom, s_buttons, s_image, s_width, s_height, s_noClose}},
        {"image-list", "ui_type_multiple_image_list", "Rows with a picture each",
         s_listFields + Fields{s_images, s_width, s_height, s_selectable}},
        {"pin", "ui_type_pin_entry", "A PIN to enter", {s_title, s_sub, s_text, s_pinLength, s_bottom}},
        {"progress",
         "ui_type_progress",
         "A bar; asked for again with the same ids, it moves on",
         {s_title, s_text, s_percent, s_buttons}},
        {"loading", "ui_type_loading", "A busy indicator", {s_text, s_percent, s_buttons}},
    };
    return s_kinds;
}
} // namespace veskar
