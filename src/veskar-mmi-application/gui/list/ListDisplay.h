#pragma once

#include "BaseDisplay.h"
#include "Log.h"
#include "RowFocus.h"

#include <memory>
#include <optional>

namespace VESKAR_APP
{

/** What the log's macros take for a level that is not known where the line is written. */
struct LogLevel
{
    int priority;
    const char* format;
};

constexpr LogLevel LOG_LEVEL_DEBUG{DLOG_DEBUG, VESKAR_LOG_PLAIN};
constexpr LogLevel LOG_LEVEL_INFO{DLOG_INFO, VESKAR_LOG_GREEN};
constexpr LogLevel LOG_LEVEL_ERROR{DLOG_ERROR, VESKAR_LOG_RED};

/**
 * What the screens with a list of rows share: their content, the header row, the body rows and the focus.
 *
 * `Screen` is the derived class. It gives HEADER_WIDTH (design pixels), TRACE and FAULT (the log levels of its steps
 * and of callbacks without their object), s_numColumns, s_CreateMenuList, s_CreateListItemTemplate, s_ContentGet and
 * s_OnMenuItemClicked. The toolkit gets `Screen*` as every callback's data.
 */
template <class Screen>
class ListDisplay : public BaseDisplay
{
public:
    ~ListDisplay() override;

    /** Moves the focus into the list as soon as all its rows exist; `firstElement` changes the log alone. */
    void SetFocusToList(bool firstElement);

    /** The toolkit's index of the pressed row, -1 without one. */
    static int GetFocusElement(const Evas_Object* genlist);

protected:
    ListDisplay(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow);

    /** Takes the texts, rows and buttons; before Create. */
    void m_StoreMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                const std::string& format, bool firstRowHeader, const std::vector<std::string>& entries,
                                const std::vector<std::string>& buttons);

    /** Builds the list with its rows as a child of `parent`, and the header row in `box`; gives the list. */
    Evas_Object* m_CreateWindowContent(Evas_Object* parent, Evas_Object* box) override;
    void m_CreateListHeader(std::string headerEntry, Evas_Object* box);
    void m_PopulateList(Evas_Object* genlist, Elm_Genlist_Item_Class* itemClass);

    /** Makes the body row of this index the viewer's, if there is one. */
    void m_MoveToRow(std::size_t index);

    static void s_OnItemRealized(void* data, Evas_Object* object, void* eventInfo);

    Evas_Object* m_menuList;
    bool m_selectable;
    std::vector<std::shared_ptr<Elm_Object_Item>> m_menuItems; // deletes the toolkit's items
    std::string m_format;
    std::vector<std::string> m_entries; // the rows' data points into them: not changed while the list lives
    bool m_firstRowHeader;

private:
    /** Asks for as much room as the rows need, up to that of a whole list. */
    void m_AskForRowsRoom();
    static void s_OnRowDrawn(void* data, Evas_Object* list, void* eventInfo);

    /** Focuses the list when every row is realised; false when no row is. */
    bool m_FocusIfAllRealised();

    Screen* m_Screen();

    std::optional<RowFocus> m_rowFocus;
};

} // namespace VESKAR_APP
