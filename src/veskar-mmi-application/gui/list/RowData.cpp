#include "RowData.h"

#include "EflGuard.h"
#include "Log.h"
#include "Markup.h"
#include "ScaledSize.h"
#include "TextStyle.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <vector>

namespace VESKAR_APP
{

namespace
{

constexpr int MAX_COLUMNS = 8;
constexpr int BODY_WIDTH = 1154;
constexpr int LOGGED_WIDTH = 1217;
constexpr int CELL_HEIGHT = 36;

struct Row
{
    std::string format;
    std::vector<std::string> cells;
};

/** What follows the last tab is dropped. */
std::vector<std::string> SplitAtTabs(std::string_view text)
{
    std::vector<std::string> tokens;
    for (std::size_t tab = text.find('\t'); tab != std::string_view::npos; tab = text.find('\t'))
    {
        tokens.emplace_back(text.substr(0, tab));
        text.remove_prefix(tab + 1);
    }
    return tokens;
}

Row ReadRow(const char* rowData)
{
    Row row{{}, SplitAtTabs(rowData)};
    if (!row.cells.empty())
    {
        row.format = std::move(row.cells.front());
        row.cells.erase(row.cells.begin());
    }
    return row;
}

const char* Alignment(const std::string& format, std::size_t column)
{
    switch (column < format.size() ? format[column] : 'L')
    {
    case 'C':
        return "center";
    case 'R':
        return "right";
    default:
        return "left";
    }
}

std::string CellMarkup(const std::string& cell, const char* alignment, bool header)
{
    const std::string fontSize = std::to_string(TextFontSize());
    const std::string colour = TextColour();
    std::string text = std::string("<align=") + alignment + ">" + ToMarkup(cell) + "</align>";
    if (header)
    {
        LOG_DEBUG("Applying the header style.");
        text = "<b>" + text + "</b>";
    }
    return "<color=" + colour + "><font=Sans:style=Regular font_size=" + fontSize + ">" + text + "</font></color>";
}

} // namespace

std::string RowData(const std::string& format, const std::string& entry)
{
    return format + "\t" + entry + "\t";
}

int ColumnCount(const std::string& format)
{
    return static_cast<int>(std::clamp<std::size_t>(format.size(), 1, MAX_COLUMNS));
}

Evas_Object* CreateRow(const char* rowData, Evas_Object* parent, const char* part, int numColumns)
{
    LOG_DEBUG("Part = " << part);
    const bool header = std::strcmp(part, HEADER_PART) == 0;
    if (!header && std::strcmp(part, BODY_PART) != 0)
    {
        LOG_DEBUG("Not displaying " << part << " in the menu currently.");
        return nullptr;
    }
    Evas_Object* box = EFL_GUARD(elm_box_add, parent);
    EFL_GUARD(elm_box_horizontal_set, box, EINA_TRUE);

    const Row row = ReadRow(rowData);
    const int cellWidth = ScaledSize(BODY_WIDTH) / numColumns;
    const int cellHeight = ScaledSize(CELL_HEIGHT);
    for (std::size_t column = 0; column < row.cells.size(); ++column)
    {
        Evas_Object* label = EFL_GUARD(elm_label_add, parent);
        EFL_GUARD(elm_label_line_wrap_set, label, ELM_WRAP_WORD);
        EFL_GUARD(elm_label_wrap_width_set, label, cellWidth);
        // The width logged is that of a whole row with its margins; the cells share the narrower body.
        LOG_DEBUG("Scaled max label width: " << ScaledSize(LOGGED_WIDTH) << ", Number of columns: " << numColumns);
        const std::string markup = CellMarkup(row.cells[column], Alignment(row.format, column), header);
        const MainLoopSection section;
        elm_object_part_text_set(label, nullptr, markup.c_str());
        evas_object_size_hint_min_set(label, cellWidth, cellHeight);
        elm_box_pack_end(box, label);
        evas_object_size_hint_align_set(label, EVAS_HINT_FILL, 0.5);
        evas_object_show(label);
    }
    EFL_GUARD(elm_box_recalculate, box);
    EFL_GUARD(evas_object_size_hint_weight_set, box, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    EFL_GUARD(evas_object_show, box);
    LOG_DEBUG("Returning a row.");
    return box;
}

char* CreateRowText(const char* rowData, const char* part)
{
    LOG_INFO("s_TextGet part =  " << part);
    std::string text;
    for (const std::string& cell : ReadRow(rowData).cells)
    {
        text += ToMarkup(cell);
    }
    LOG_INFO("Setting text  " << text);
    return strdup(text.c_str());
}

} // namespace VESKAR_APP
