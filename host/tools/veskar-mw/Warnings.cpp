#include "Warnings.h"

#include "Nearest.h"
#include "ScreenKinds.h"

#include <algorithm>

namespace veskar
{
namespace
{
constexpr int NOBODYS_UI_ID = 0;
constexpr int NOBODYS_SOURCE_ID = 100;
constexpr int LAST_MODULE_SOURCE_ID = 253;
constexpr std::size_t LAST_ROW_IN_A_BYTE = 255;

std::size_t Columns(const Request& request)
{
    constexpr std::size_t MOST = 8;
    const std::string* format = request.Text("ui_param_format");
    return std::clamp<std::size_t>(format != nullptr ? format->size() : 0, 1, MOST);
}

std::size_t HeaderCells(const Request& request)
{
    const std::string header = request.List("ui_param_entries").front();
    return static_cast<std::size_t>(std::count(header.begin(), header.end(), '\t')) + 1;
}

bool AnswersRowByNumber(const Request& request)
{
    return request.AsksFor("ui_type_select") || request.AsksFor("ui_type_multiple_image_list");
}

bool ShowsHeader(const Request& request)
{
    return request.HasHeader() && (request.AsksFor("ui_type_list") || AnswersRowByNumber(request));
}

/** Every key that a request may have, whatever its kind. */
Texts KnownKeys()
{
    Texts keys{"signal_type_key", "signal_tvservice_key", "ui_param_ui_id", "ui_param_source_id", "menu_pos_key"};
    for (const ScreenKind& kind : ScreenKinds())
    {
        for (const Field& field : kind.fields)
        {
            keys.push_back(field.key);
        }
    }
    return keys;
}

} // namespace

Texts Warnings(const Request& request, bool waits)
{
    Texts warnings;
    if (request.AsksForClose() && request.SourceId() <= LAST_MODULE_SOURCE_ID)
    {
        warnings.emplace_back(
            "a close with a source id of 0 to 253 sends no answer: who waits for the screen's answer waits in vain");
    }
    const Texts known = KnownKeys();
    for (const auto& [key, value] : request.Values())
    {
        if (std::find(known.begin(), known.end(), key) == known.end())
        {
            warnings.push_back("no kind reads \"" + key + "\"" + Suggestion(key, known));
        }
    }
    if (request.IsOfUnknownKind())
    {
        warnings.emplace_back("no screen is of this kind: the request is sent, and no answer waited for");
    }
    if (waits && (request.UiId() == NOBODYS_UI_ID || request.SourceId() == NOBODYS_SOURCE_ID))
    {
        warnings.emplace_back("a screen with ui id 0 or source id 100 is answered by no key and not when it is "
                              "replaced, but only by a close with source id 254 or 255");
    }
    if (AnswersRowByNumber(request) && request.Rows().size() > LAST_ROW_IN_A_BYTE)
    {
        warnings.emplace_back("one byte carries the number of a row: row 256 is answered as 0, row 257 as 1");
    }
    if (ShowsHeader(request) && HeaderCells(request) != Columns(request))
    {
        warnings.push_back("cells of the header: " + std::to_string(HeaderCells(request)) + ", columns: " +
                           std::to_string(Columns(request)) + ": the header does not stand over its columns");
    }
    return warnings;
}

} // namespace veskar
