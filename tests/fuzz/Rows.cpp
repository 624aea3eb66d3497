// A row of a list, from its two texts to its widgets. The input: the format, the cells, whether it is the header.

#include "Handles.h"
#include "Input.h"
#include "RowData.h"
#include "Toolkit.h"
#include "Tv.h"

#include <cctype>
#include <memory>

using namespace VESKAR_APP;

namespace
{

bool IsPlain(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](unsigned char byte) { return byte < 0x80 && std::isprint(byte); });
}

std::string Shown(const char* markup)
{
    const CString text(elm_entry_markup_to_utf8(markup));
    return text.get();
}

} // namespace

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
    const std::unique_ptr<Eina_List, decltype(&eina_list_free)> labels(elm_box_children_get(box), eina_list_free);
    const auto tabs = std::count(row.begin(), row.end(), '\t');
    Require(eina_list_count(labels.get()) == static_cast<unsigned>(tabs - 1), "each cell has a label");
    evas_object_del(box);
    ecore_main_loop_iterate();
    const CString markup(CreateRowText(row.c_str(), "elm.text"));
    cells.erase(std::remove(cells.begin(), cells.end(), '\t'), cells.end());
    Require(!IsPlain(format + cells) || Shown(markup.get()) == cells, "what is shown is the text: " + cells);
    return 0;
}
