#include "TestMode.h"

#include "IWindowManager.h"

#include <string>
#include <vector>

namespace VESKAR_APP
{

namespace
{

using Text = std::string;
using Texts = std::vector<std::string>;

constexpr int UI_ID = 0;
constexpr unsigned char SOURCE_ID = 0;
constexpr unsigned char PIN_LENGTH = 4;
constexpr unsigned char SAMPLE_PERCENT = 35;

constexpr const char* OPERATOR_LOGO =
    "/opt/usr/apps/org.tizen.veskar/op/5c0f3a9d2e7b4816a1d9e3f07b62c4a8/icons/kavro_logo_guide.png";

constexpr const char* LONG_PROSE =
    "The last ferry of the evening had already left when Marta reached the quay, and with it went the lights, the "
    "voices and the smell of coffee that had made the place feel like the beginning of a journey. What remained was "
    "a bench, a lamp that hummed, and the water, which kept moving as if it had somewhere to be. She put her case "
    "down and counted the hours until morning. There were nine. She had a book, two apples and a letter that she "
    "had promised herself not to open before the other side, and of the three it was the letter that weighed most. "
    "A cat came along the wall, looked at her as the harbour master might have looked, and decided that she could "
    "stay. So she stayed. Towards midnight the wind turned and brought the sound of a radio from one of the moored "
    "boats, an old dance tune with a trumpet in it, and a man's voice that sang a little behind the music, not well "
    "but with all his heart. She laughed, and because she had laughed she ate the first of the apples, and because "
    "the apple was sweet she thought that the letter might be kind.";

bool ShowMessage(IWindowManager& manager, const Text& title, const Text& text, const Texts& buttons)
{
    return manager.ShowMmiMessage(UI_ID, SOURCE_ID, title, "", "", text, buttons, false);
}

bool ShowTitledMessage(IWindowManager& manager, const Texts& buttons)
{
    return manager.ShowMmiMessage(
        UI_ID, SOURCE_ID, "Title", "Sub-Title", "Bottom Title",
        "Confirm that 'Title', 'Sub-Title' and 'Bottom Title' are displayed with this message.", buttons, false);
}

bool ShowList(IWindowManager& manager, const Text& title, const Text& format, const Texts& entries,
              const Texts& buttons)
{
    return manager.ShowMmiList(UI_ID, SOURCE_ID, title, "Sub-Title", "Bottom Title", format, true, entries, buttons,
                               true);
}

Texts ShortItems()
{
    Texts entries{"List Item (left justified)"};
    for (int i = 1; i <= 10; ++i)
    {
        entries.push_back("This is list item " + std::to_string(i) + ".");
    }
    return entries;
}

Texts LongItems()
{
    Texts entries{"List Item Col. 1 "};
    for (int i = 1; i <= 10; ++i)
    {
        entries.push_back("This is list item " + std::to_string(i) + " and centre justified, more than 40+ char.");
    }
    return entries;
}

Texts EightColumns()
{
    Texts entries{"Col1\tCol2\tCol3\tCol4\tCol5\tCol6\tCol7\tCol8"};
    entries.resize(11, "Data1\tData2\tData3\tData4\tData5\tData6\tData7\tData8");
    return entries;
}

/** Each row has text in one cell only, one column further on than the row above. */
Texts MalformedColumns()
{
    constexpr int COLUMNS = 7;
    Texts entries{"Malformed Columns" + Text(COLUMNS, '\t')};
    for (int column = 1; column <= COLUMNS; ++column)
    {
        entries.push_back(Text(column - 1, '\t') + "Column" + std::to_string(column) + "-20 char long" +
                          Text(COLUMNS - column + 1, '\t'));
    }
    return entries;
}

Texts ThreeColumns()
{
    Texts entries{"Column1\tColumn2\tColumn3"};
    for (int row = 1; row <= 7; ++row)
    {
        entries.push_back("Row" + std::to_string(row) + "-Item1\tItem2\tItem3");
    }
    return entries;
}

bool ShowMessageCase(IWindowManager& manager, int testId)
{
    switch (testId)
    {
    case 1:
        return ShowTitledMessage(manager, {});
    case 2:
        return ShowTitledMessage(manager, {"Prev", "Next"});
    case 3:
        return ShowTitledMessage(manager, {"Prev", "Next", "Cancel"});
    case 4:
        return manager.ShowMmiMessage(UI_ID, SOURCE_ID, "Title", "Sub-Title", "Bottom Title", "test noClose = true",
                                      {"One button"}, true);
    case 13:
        return ShowMessage(manager, "A long text", LONG_PROSE, {"Prev"});
    case 17:
        return manager.ShowMessage(UI_ID, SOURCE_ID, "", "", "", "Kavro removed", {"OK"}, false);
    case 18:
        return ShowMessage(manager, "Η κάρτα σας",
                           "Η συνδρομή σας λήγει σε τρεις ημέρες. Θέλετε να την ανανεώσετε τώρα;", {"OK"});
    case 19:
        return ShowMessage(manager, " KaVro 모듈이 준비되었습니다", " KaVro 모듈이 준비되었습니다", {"OK"});
    case 20:
        return ShowMessage(manager, "Center aligned", "Text should be center aligned", {"OK"});
    case 21:
        return ShowMessage(manager, "Northern Lights TV Wrap issue",
                           "Do you want to delete the selected Kavro operator profile?The operator’s channel list "
                           "will be deleted.",
                           {"OK"});
    case 22:
        return ShowMessage(manager, "KaVro ماڈیول",
                           "KaVro ماڈیول نئے چینل تلاش کرنا چاہتا ہے۔ کیا ابھی تلاش شروع کی جائے؟", {"OK", "Cancel"});
    default:
        return false;
    }
}

bool ShowListCase(IWindowManager& manager, int testId)
{
    switch (testId)
    {
    case 5:
        return ShowList(manager, "One column", "L", ShortItems(), {});
    case 6:
        return ShowList(manager, "One column, centred", "C", LongItems(), {});
    case 7:
        return ShowList(manager, "One column, centred", "C", LongItems(), {"Prev"});
    case 8:
        return ShowList(manager, "Eight columns", "LRCLRCLR", EightColumns(), {"Prev"});
    case 9:
        return ShowList(manager, "Malformed columns", "LRCLRCLR", MalformedColumns(), {"Prev"});
    case 10:
        return ShowList(manager, "Three columns", "LRC", ThreeColumns(), {});
    case 11:
        return ShowList(manager, "Three columns", "LRC", ThreeColumns(), {"Prev"});
    default:
        return false;
    }
}

} // namespace

bool ShowTestCase(IWindowManager& windowManager, int testId)
{
    switch (testId)
    {
    case 0:
        return windowManager.ShowTestPopup(UI_ID, SOURCE_ID, 0);
    case 12:
        return windowManager.ShowMmiPinEntry(UI_ID, SOURCE_ID, "Please enter parental PIN", "", "", PIN_LENGTH, "");
    case 14:
        return windowManager.ShowLoading(UI_ID, SOURCE_ID, "Loading, please wait", {}, 0);
    case 15:
        return windowManager.ShowProgress(UI_ID, SOURCE_ID, "Installation in progress", "", "Cancel", SAMPLE_PERCENT);
    case 16:
        return windowManager.ShowImage(UI_ID, SOURCE_ID, "Operator logo", "Sub-Title", "Bottom Title", OPERATOR_LOGO,
                                       400, 300, {"OK"}, false);
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
    case 11:
        return ShowListCase(windowManager, testId);
    default:
        return ShowMessageCase(windowManager, testId);
    }
}

} // namespace VESKAR_APP
