#include "ListDisplay.h"

#include "EflGuard.h"
#include "ImageListPopup.h"
#include "ListRow.h"
#include "ListWindow.h"
#include "MultipleListWindow.h"
#include "Names.h"
#include "ScaledSize.h"

#include <algorithm>
#include <cstdlib>

namespace VESKAR_APP
{

namespace
{

constexpr int HEADER_HEIGHT = 30;
constexpr int LIST_WIDTH = 1440;
constexpr int LIST_HEIGHT = 484; // what a list takes at most: six rows, and what rounding may take of them
constexpr int ROW_HEIGHT = 76;   // where the theme does not tell it
constexpr const char* ROW_HEIGHT_ITEM = "row_height";

using ItemClass = std::unique_ptr<Elm_Genlist_Item_Class, GuardedFreeWith<elm_genlist_item_class_free>>;

/** A list's nodes; what they point to stays whose it is. */
using EinaList = std::unique_ptr<Eina_List, GuardedFreeWith<eina_list_free>>;

/** In design pixels, as all that the theme tells. */
int RowHeight(const Evas_Object* list)
{
    const MainLoopSection section;
    const char* height = elm_layout_data_get(list, ROW_HEIGHT_ITEM);
    return height == nullptr ? ROW_HEIGHT : std::atoi(height);
}

void DeleteItem(Elm_Object_Item* item)
{
    EFL_GUARD(elm_object_item_del, item);
}

} // namespace

#define LOG_AT(level, stream) VESKAR_LOG_STREAM((level).priority, (level).format, stream)

template <class Screen>
ListDisplay<Screen>::ListDisplay(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, LARGE_POPUP_STYLE, true), m_menuList(nullptr),
      m_selectable(selectable), m_firstRowHeader(false)
{
    LOG_ENTRY();
}

template <class Screen>
ListDisplay<Screen>::~ListDisplay()
{
    // The rows go before the list does, and others are drawn in their place.
    EFL_GUARD(evas_object_smart_callback_del_full, m_menuList, "realized", s_OnRowDrawn, this);
}

template <class Screen>
void ListDisplay<Screen>::m_StoreMenuInformation(const std::string& title, const std::string& subTitle,
                                                 const std::string& bottom, const std::string& format,
                                                 bool firstRowHeader, const std::vector<std::string>& entries,
                                                 const std::vector<std::string>& buttons)
{
    t_SetTitle(title);
    t_SetSubtitle(subTitle);
    t_SetBottomText(bottom);
    m_format = format;
    m_firstRowHeader = firstRowHeader;
    m_entries = entries;
    t_buttonLabels = buttons;
    LOG_INFO("Menu title = " << title);
    LOG_INFO("Menu subTitle = " << subTitle);
    LOG_INFO("Menu bottom = " << bottom);
    Screen::s_numColumns = ColumnCount(format);
}

template <class Screen>
Evas_Object* ListDisplay<Screen>::m_CreateWindowContent(Evas_Object* parent, Evas_Object* box)
{
    LOG_ENTRY();
    m_menuList = Screen::s_CreateMenuList(parent);
    const ItemClass itemClass(Screen::s_CreateListItemTemplate());
    if (m_firstRowHeader && !m_entries.empty())
    {
        m_CreateListHeader(m_entries.front(), box);
    }
    m_PopulateList(m_menuList, itemClass.get());
    EFL_GUARD(evas_object_show, m_menuList);
    // Rows that a smaller view would not draw at first are not there when the list is to have the focus.
    EFL_GUARD(evas_object_resize, m_menuList, ScaledSize(LIST_WIDTH), ScaledSize(LIST_HEIGHT));
    m_AskForRowsRoom();
    EFL_GUARD(evas_object_smart_callback_add, m_menuList, "realized", s_OnRowDrawn, this);
    if (!m_menuItems.empty())
    {
        m_rowFocus.emplace(t_mainWindow, m_menuList);
    }
    return m_menuList;
}

template <class Screen>
void ListDisplay<Screen>::m_AskForRowsRoom()
{
    const int rows = ScaledSize(static_cast<double>(m_menuItems.size()) * RowHeight(m_menuList));
    int drawn = 0;
    EFL_GUARD(elm_scroller_child_size_get, m_menuList, nullptr, &drawn);
    t_AskForRoom(std::min(std::max(rows, drawn), ScaledSize(LIST_HEIGHT)));
}

template <class Screen>
void ListDisplay<Screen>::s_OnRowDrawn(void* data, Evas_Object* /*list*/, void* /*eventInfo*/)
{
    // Only a row that is drawn tells its height, and it may have several lines.
    static_cast<ListDisplay*>(data)->m_AskForRowsRoom();
}

template <class Screen>
void ListDisplay<Screen>::m_CreateListHeader(std::string headerEntry, Evas_Object* box)
{
    headerEntry = RowData(m_format, headerEntry);
    Evas_Object* row = Screen::s_ContentGet(headerEntry.data(), box, HEADER_PART);
    if (row == nullptr)
    {
        return;
    }
    EFL_GUARD(evas_object_size_hint_min_set, row, ScaledSize(Screen::HEADER_WIDTH), ScaledSize(HEADER_HEIGHT));
    EFL_GUARD(elm_box_pack_end, box, row);
}

template <class Screen>
void ListDisplay<Screen>::m_PopulateList(Evas_Object* genlist, Elm_Genlist_Item_Class* itemClass)
{
    m_menuItems.clear();
    std::string spoken;
    bool isHeader = m_firstRowHeader;
    for (std::string& entry : m_entries)
    {
        spoken += SpokenRow(entry);
        entry = RowData(m_format, entry);
        if (isHeader)
        {
            LOG_AT(Screen::TRACE, "Skipping the header: " << entry);
            isHeader = false;
            continue;
        }
        LOG_AT(Screen::TRACE, "Adding to the body: " << entry);
        Elm_Object_Item* item = EFL_GUARD(elm_genlist_item_append, genlist, itemClass, entry.c_str(), nullptr,
                                          ELM_GENLIST_ITEM_NONE, Screen::s_OnMenuItemClicked, m_Screen());
        if (item != nullptr)
        {
            m_menuItems.emplace_back(item, DeleteItem);
        }
    }
    t_SetTTSText(spoken, nullptr);
    LOG_AT(Screen::TRACE, "Finished adding data to the list.");
}

template <class Screen>
int ListDisplay<Screen>::GetFocusElement(const Evas_Object* genlist)
{
    Elm_Object_Item* item = EFL_GUARD(elm_genlist_selected_item_get, genlist);
    if (item == nullptr)
    {
        LOG_ERROR("selected_genlist_item == NULL");
    }
    // Without an item the toolkit answers -1, and that is what is reported.
    const int index = EFL_GUARD(elm_genlist_item_index_get, item);
    LOG_INFO("Selected item index from genlist: " << index);
    return index;
}

template <class Screen>
void ListDisplay<Screen>::SetFocusToList(bool firstElement)
{
    LOG_ENTRY();
    if (m_menuItems.empty())
    {
        LOG_ERROR("m_menuItems.empty()");
        return;
    }
    if (t_displayedButtons != 0 && !t_buttonLabels.front().empty())
    {
        m_rowFocus->LeadDownTo(t_buttons[0]);
    }
    if (!m_FocusIfAllRealised())
    {
        EFL_GUARD(evas_object_smart_callback_add, m_menuList, "realized", s_OnItemRealized, m_Screen());
    }
    if (firstElement)
    {
        LOG_ERROR("SetFocusToList, firstElement=true, mfocus set to zero");
        return;
    }
    LOG_ERROR("SetFocusToList, firstElement=false, mfocus substract from m_menuItems.size m_menuItems.size = "
              << m_menuItems.size());
}

template <class Screen>
void ListDisplay<Screen>::m_MoveToRow(std::size_t index)
{
    if (index < m_menuItems.size())
    {
        m_rowFocus->MoveTo(m_menuItems[index].get());
    }
}

template <class Screen>
void ListDisplay<Screen>::s_OnItemRealized(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_AT(Screen::FAULT, " pthis == NULL");
        return;
    }
    static_cast<Screen*>(data)->m_FocusIfAllRealised();
}

template <class Screen>
bool ListDisplay<Screen>::m_FocusIfAllRealised()
{
    const EinaList realized(EFL_GUARD(elm_genlist_realized_items_get, m_menuList));
    if (EFL_GUARD(eina_list_count, realized.get()) == m_menuItems.size())
    {
        LOG_WARN("Found all realised item(s). Now focusing on the menu.");
        EFL_GUARD(elm_object_focus_set, m_menuList, EINA_TRUE);
    }
    return realized != nullptr;
}

template <class Screen>
Screen* ListDisplay<Screen>::m_Screen()
{
    return static_cast<Screen*>(this);
}

template class ListDisplay<ListWindow>;
template class ListDisplay<MultipleListWindow>;
template class ListDisplay<ImageListPopup>;

} // namespace VESKAR_APP
