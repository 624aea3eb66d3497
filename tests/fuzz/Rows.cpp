// A row of a list, from its two texts to its widgets. The input: the format, the cells, whether it is the header.

#include "Handles.h"
#include "Input.h"
#include "RowData.h"
#include "Toolkit.h"
#include "Tv.h"

using namespace VESKAR_APP;

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static Evas_Object* window = StartToolkit() ? elm_win_add(nullptr, "fuzz", ELM_WIN_DIALOG_BASIC) : nullptr;
    constexpr auto MOST_TABS = 64;
    Input input(data, size);
    const std::string format = input.Text();
    std::string cells = input.Text();
    if (std::count(cells.begin(), cells.end(), '\t') > MOST_TABS)
    {
        return 0;
    }
    tv.Forget();
    const std::string row = RowData(format, cells);
    const bool isHeader = input.Byte() != 0;
    Evas_Object* box = CreateRow(row.c_str(), window, isHeader ? HEADER_PART : BODY_PART, ColumnCount(format));
    Eina_List* labels = elm_box_children_get(box);
    const auto tabs = std::count(row.begin(), row.end(), '\t');
    Require(eina_list_count(labels) == static_cast<unsigned>(tabs - 1), "each cell has a label");
    eina_list_free(labels);
    evas_object_del(box);
    ecore_main_loop_iterate();

    const CString markup(CreateRowText(row.c_str(), "elm.text"));
    const CString shown(elm_entry_markup_to_utf8(markup.get()));
    cells.erase(std::remove(cells.begin(), cells.end(), '\t'), cells.end());
    const auto isPlain = [](char character)
    {
        return character >= ' ' && character < 0x7F;
    };
    const std::string texts = format + cells;
    Require(!std::all_of(texts.begin(), texts.end(), isPlain) || shown.get() == cells, "what is shown is the text");
    return 0;
}
