#include "ScreenKinds.h"

namespace veskar
{
namespace
{
using Fields = std::vector<Field>;

const Field TITLE{"ui_param_title", "--title", Encoding::Text, "Title line"};
const Field SUB{"ui_param_sub", "--sub", Encoding::Text, "Sub-title line"};
const Field BOTTOM{"ui_param_bottom", "--bottom", Encoding::Text, "Bottom line"};
const Field TEXT{"ui_param_txt", "--text", Encoding::Text, "The text itself"};
const Field BUTTONS{"ui_param_buttons", "--button", Encoding::List, "A button's label (repeatable)"};
const Field NO_CLOSE{"ui_param_noclose", "--no-close", Encoding::Flag, "Stays although no key is pressed"};
const Field ENTRIES{"ui_param_entries", "--entry", Encoding::List, "A row (repeatable)"};
const Field ENTRIES_FROM{"ui_param_entries", "--entries-from", Encoding::ListFromFile,
                         "More rows, one a line; - is standard input"};
const Field FORMAT{"ui_param_format", "--format", Encoding::Text, "L, R or C for each column"};
const Field HEADER{"ui_param_header", "--header", Encoding::Flag, "The first row is a header"};
const Field WIDTH{"ui_param_image_width", "--width", Encoding::Number, "The image's width in design pixels"};
const Field HEIGHT{"ui_param_image_height", "--height", Encoding::Number, "The image's height in design pixels"};
const Field PERCENT{"ui_param_percent", "--percent", Encoding::Number, "How far it is, up to 100", 0, 100};
const Field IMAGE{"ui_param_image_location", "--image", Encoding::Text, "The image's file"};
const Field IMAGES{"ui_param_multiple_image_locations", "--image", Encoding::List,
                   "The image of a row, in the rows' order (repeatable)"};
const Field SELECTABLE{"ui_param_selectable", "--selectable", Encoding::Flag, "A row can be chosen"};
const Field PIN_TEXT{"ui_param_txt", "--text", Encoding::Text, "The text, which a PIN screen shows as its sub-title"};
const Field PIN_SUB{"ui_param_sub", "--sub", Encoding::Text, "Does nothing: --text stands in the sub-title's place"};
const Field PIN_LENGTH{"ui_param_pin_length", "--length", Encoding::Number,
                       "Does nothing: a PIN always has four digits", 4};

const Fields LIST_FIELDS{TITLE, SUB, BOTTOM, ENTRIES, ENTRIES_FROM, FORMAT, HEADER, BUTTONS};

Fields operator+(Fields fields, const Fields& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

} // namespace

const std::vector<ScreenKind>& ScreenKinds()
{
    static const std::vector<ScreenKind> kinds{
        {"message", "ui_type_message", "A text with buttons", {TITLE, SUB, BOTTOM, TEXT, BUTTONS, NO_CLOSE}},
        {"list", "ui_type_list", "Rows to read", LIST_FIELDS},
        {"select", "ui_type_select", "Rows of which one is chosen", LIST_FIELDS},
        {"multi-list", "ui_type_multiple_list", "Rows of which several are marked", LIST_FIELDS},
        {"image", "ui_type_image", "A picture", {TITLE, SUB, BOTTOM, BUTTONS, IMAGE, WIDTH, HEIGHT, NO_CLOSE}},
        {"image-list", "ui_type_multiple_image_list", "Rows with a picture each",
         LIST_FIELDS + Fields{IMAGES, WIDTH, HEIGHT, SELECTABLE}},
        {"pin", "ui_type_pin_entry", "A PIN to enter", {TITLE, PIN_SUB, PIN_TEXT, PIN_LENGTH, BOTTOM}},
        {"progress",
         "ui_type_progress",
         "A bar; asked for again with the same ids, it moves on",
         {TITLE, TEXT, PERCENT, BUTTONS}},
        {"loading", "ui_type_loading", "A busy indicator", {TEXT, PERCENT, BUTTONS}},
    };
    return kinds;
}

} // namespace veskar
