#include "MenuList.h"

#include "EflGuard.h"
#include "RowData.h"
#include "ScaledSize.h"

namespace VESKAR_APP
{

namespace
{

constexpr int HEADER_HEIGHT = 30;
constexpr const char* LIST_STYLE = "C_Scrollbar_White";

using RowTemplate = std::unique_ptr<Elm_Genlist_Item_Class, GuardedFreeWith<elm_genlist_item_class_free>>;

/** A list's nodes; what they point to stays whose it is. */
using EinaList = std::unique_ptr<Eina_List, GuardedFreeWith<eina_list_free>>;

} // namespace

Evas_Object* AddMenuList(Evas_Object* parent)
{
    Evas_Object* list = EFL_GUARD(elm_genlist_add, parent);
    if (list == nullptr)
    {
        LOG_ERROR("Unable to create menu list");
    }
    return list;
}

Evas_Object* AddEvenMenuList(Evas_Object* parent, Elm_Object_Select_Mode selectMode, bool multiSelect)
{
    Evas_Object* list = AddMenuList(parent);
    if (list == nullptr)
    {
        return nullptr;
    }
    const MainLoopSection section;
    elm_genlist_select_mode_set(list, selectMode);
    elm_genlist_homogeneous_set(list, EINA_TRUE);
    ApplyMenuListLook(list);
    elm_genlist_multi_select_set(list, multiSelect);
    SwitchFocusHighlightOn();
    return list;
}

void ApplyMenuListLook(Evas_Object* list)
{
    elm_genlist_mode_set(list, ELM_LIST_SCROLL);
    elm_object_style_set(list, LIST_STYLE);
    elm_scroller_policy_set(list, ELM_SCROLLER_POLICY_OFF, ELM_SCROLLER_POLICY_ON);
}

void SwitchFocusHighlightOn()
{
    elm_config_focus_highlight_enabled_set(EINA_TRUE);
    elm_config_focus_highlight_animate_set(EINA_TRUE);
}

MenuList::MenuList(const MenuListKind& kind, void* screen)
    : m_kind(kind), m_screen(screen), m_menuList(nullptr), m_firstRowHeader(false)
{
}

MenuList::~MenuList()
{
    // Taken back before the rows are deleted, as often as it was added.
    while (m_menuList != nullptr && EFL_GUARD(evas_object_smart_callback_del_full, m_menuList, "realized",
                                              m_kind.onRowRealised, m_screen) != nullptr)
    {
    }
}

void MenuList::SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                  const std::string& format, bool firstRowHeader,
                                  const std::vector<std::string>& entries)
{
    m_format = format;
    m_firstRowHeader = firstRowHeader;
    m_entries = entries;
    LOG_INFO("Menu title = " << title);
    LOG_INFO("Menu subTitle = " << subTitle);
    LOG_INFO("Menu bottom = " << bottom);
}

std::string MenuList::Fill(Evas_Object* menuList, Evas_Object* box)
{
    m_menuList = menuList;
    const RowTemplate rowTemplate(m_kind.createRowTemplate());
    if (m_firstRowHeader && HasEntries())
    {
        m_CreateListHeader(m_entries.front(), box);
    }
    return m_PopulateList(rowTemplate.get());
}

void MenuList::m_CreateListHeader(std::string headerEntry, Evas_Object* box)
{
    headerEntry = RowData(m_format, headerEntry);
    Evas_Object* row = m_kind.createHeader(headerEntry.data(), box, HEADER_PART);
    if (row == nullptr)
    {
        return;
    }
    const int width = ScaledSize(m_kind.headerWidth);
    const int height = ScaledSize(HEADER_HEIGHT);
    EFL_GUARD(evas_object_size_hint_min_set, row, width, height);
    EFL_GUARD(elm_box_pack_end, box, row);
}

std::string MenuList::m_PopulateList(Elm_Genlist_Item_Class* itemClass)
{
    m_menuItems.clear();
    std::string spoken;
    bool isHeader = m_firstRowHeader;
    for (std::string& entry : m_entries)
    {
        spoken += entry + ", ";
        entry = RowData(m_format, entry);
        if (isHeader)
        {
            LOG_AT(m_kind.trace, "Skipping the header: " << entry);
            isHeader = false;
            continue;
        }
        LOG_AT(m_kind.trace, "Adding to the body: " << entry);
        Elm_Object_Item* item = EFL_GUARD(elm_genlist_item_append, m_menuList, itemClass, entry.c_str(), nullptr,
                                          ELM_GENLIST_ITEM_NONE, m_kind.onRowPressed, m_screen);
        if (item != nullptr)
        {
            m_menuItems.push_back(std::shared_ptr<Elm_Object_Item>(item, GuardedFreeWith<elm_object_item_del>()));
        }
    }
    return spoken;
}

int MenuList::GetFocusElement(const Evas_Object* genlist)
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

void MenuList::SetFocusToList(bool firstElement)
{
    LOG_ENTRY();
    if (m_menuItems.empty())
    {
        LOG_ERROR("m_menuItems.empty()");
        return;
    }
    if (!FocusIfAllRealised())
    {
        EFL_GUARD(evas_object_smart_callback_add, m_menuList, "realized", m_kind.onRowRealised, m_screen);
    }
    if (firstElement)
    {
        LOG_ERROR("SetFocusToList, firstElement=true, mfocus set to zero");
        return;
    }
    LOG_ERROR("SetFocusToList, firstElement=false, mfocus substract from m_menuItems.size m_menuItems.size = "
              << m_menuItems.size());
}

bool MenuList::FocusIfAllRealised()
{
    const EinaList realized(EFL_GUARD(elm_genlist_realized_items_get, m_menuList));
    if (EFL_GUARD(eina_list_count, realized.get()) == m_menuItems.size())
    {
        LOG_WARN("Found all realised item(s). Now focusing on the menu.");
        EFL_GUARD(elm_object_focus_set, m_menuList, EINA_TRUE);
    }
    return realized != nullptr;
}

} // namespace VESKAR_APP
