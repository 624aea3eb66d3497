#include "SpokenText.h"

#include <Elementary.h>
#include <algorithm>
#include <cctype>
#include <iterator>

namespace veskar
{
namespace
{

// Each is said as a space.
constexpr std::string_view BREAKS[] = {"br", "ps", "tab"};

// Names of styles: a tag with nothing else in it.
constexpr std::string_view STYLES[] = {"a", "b", "em", "hilight", "i", "link"};

// Formats: a tag only with a value, as in <align=left>.
// clang-format off: one a line otherwise.
constexpr std::string_view FORMATS[] = {"align",
                                        "backing",
                                        "backing_color",
                                        "color",
                                        "ellipsis",
                                        "font",
                                        "font_fallbacks",
                                        "font_size",
                                        "font_source",
                                        "font_style",
                                        "font_weight",
                                        "font_width",
                                        "gfx_filter",
                                        "glow2_color",
                                        "glow_color",
                                        "item",
                                        "lang",
                                        "left_margin",
                                        "linefill",
                                        "linegap",
                                        "linerelgap",
                                        "linerelsize",
                                        "linesize",
                                        "outline_color",
                                        "password",
                                        "replacement_char",
                                        "right_margin",
                                        "secondary_underline_color",
                                        "shadow_color",
                                        "strikethrough",
                                        "strikethrough_color",
                                        "strikethrough_type",
                                        "style",
                                        "tabstops",
                                        "underline",
                                        "underline2_color",
                                        "underline_color",
                                        "underline_dash_color",
                                        "underline_dash_gap",
                                        "underline_dash_width",
                                        "underline_height",
                                        "underline_type",
                                        "valign",
                                        "wrap"};
// clang-format on

/** The markup at the beginning of a text. */
struct Markup
{
    std::size_t length; // 0: there is none
    std::string said;
};

constexpr std::size_t NOT_FOUND = std::string_view::npos;

template <std::size_t Count>
bool IsIn(const std::string_view (&names)[Count], std::string_view name)
{
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool IsStyle(std::string_view name)
{
    return IsIn(STYLES, name) || IsIn(BREAKS, name);
}

bool IsOpeningTag(std::string_view name, std::string_view rest)
{
    const bool hasValue = rest.find('=') != NOT_FOUND;
    if (IsIn(FORMATS, name))
    {
        return hasValue;
    }
    return IsStyle(name) && (hasValue || rest.find_first_not_of(" /") == NOT_FOUND);
}

/** "</>" ends whatever was opened last. */
bool IsClosingTag(std::string_view name)
{
    return name.empty() || IsStyle(name) || IsIn(FORMATS, name);
}

/** `text` begins with "<". */
Markup TagAt(std::string_view text)
{
    const std::size_t end = text.find_first_of("<>", 1);
    if (end == NOT_FOUND || text[end] == '<')
    {
        return {};
    }
    const std::string_view inside = text.substr(1, end - 1);
    if (inside.substr(0, 1) == "/")
    {
        return {IsClosingTag(inside.substr(1)) ? end + 1 : 0, ""};
    }
    const std::string_view name = inside.substr(0, inside.find_first_of(" =/"));
    return {IsOpeningTag(name, inside.substr(name.size())) ? end + 1 : 0, IsIn(BREAKS, name) ? " " : ""};
}

/** `text` begins with "&". */
Markup EntityAt(std::string_view text)
{
    const std::size_t end = text.find_first_of("&;", 1);
    if (end == NOT_FOUND)
    {
        return {};
    }
    const std::string entity(text.substr(0, end + 1)); // none that is known has a "&" in it
    const char* said = evas_textblock_escape_string_get(entity.c_str());
    return said != nullptr ? Markup{entity.size(), said} : Markup{};
}

Markup MarkupAt(std::string_view text)
{
    switch (text.front())
    {
    case '<':
        return TagAt(text);
    case '&':
        return EntityAt(text);
    default:
        return {};
    }
}

bool IsControl(unsigned char byte)
{
    return std::iscntrl(byte) != 0;
}

} // namespace

std::string SpokenText(std::string_view text)
{
    std::string spoken;
    while (!text.empty())
    {
        const Markup markup = MarkupAt(text);
        spoken += markup.length > 0 ? markup.said : std::string(1, text.front());
        text.remove_prefix(std::max<std::size_t>(markup.length, 1));
    }
    std::replace_if(spoken.begin(), spoken.end(), IsControl, ' ');
    return spoken;
}

} // namespace veskar
