#include "ListWindow.h"

#include "EflGuard.h"
#include "Log.h"
#include "RowData.h"

namespace VESKAR_APP
{

const MenuListKind ListWindow::KIND = {
    1217, LOG_LEVEL_DEBUG, s_CreateListItemTemplate, s_ContentGet, s_OnMenuItemClicked, s_OnItemRealized,
};

int ListWindow::s_numColumns = 1;

ListWindow::ListWindow(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, LARGE_POPUP_STYLE, true), m_list(KIND, this),
      m_selectable(selectable)
{
    LOG_ENTRY();
}

bool ListWindow::SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                    const std::string& format, bool firstRowHeader,
                                    const std::vector<std::string>& entries, const std::vector<std::string>& buttons)
{
    t_SetTexts(title, subTitle, bottom);
    t_buttonLabels = buttons;
    m_list.SetMenuInformation(title, subTitle, bottom, format, firstRowHeader, entries);
    s_numColumns = ColumnCount(format);
    return true;
}

void ListWindow::SetFocusToList(bool firstElement)
{
    m_list.SetFocusToList(firstElement);
}

bool ListWindow::t_Show()
{
    LOG_ENTRY();
    SetFocusToList(true);
    return BaseDisplay::t_Show();
}

Evas_Object* ListWindow::m_CreateWindowContent(Evas_Object* parent, Evas_Object* box)
{
    LOG_ENTRY();
    Evas_Object* list = s_CreateMenuList(parent);
    t_SetTTSText(m_list.Fill(list, box), nullptr);
    LOG_DEBUG("Finished adding data to the list.");
    EFL_GUARD(evas_object_show, list);
    return list;
}

Evas_Object* ListWindow::s_CreateMenuList(Evas_Object* parent)
{
    Evas_Object* list = AddMenuList(parent);
    if (list == nullptr)
    {
        return nullptr;
    }
    const MainLoopSection section;
    ApplyMenuListLook(list);
    elm_genlist_homogeneous_set(list, EINA_FALSE);
    elm_genlist_multi_select_set(list, EINA_FALSE);
    elm_genlist_select_mode_set(list, ELM_OBJECT_SELECT_MODE_ALWAYS); // a row pressed twice is reported twice
    elm_scroller_bounce_set(list, EINA_FALSE, EINA_TRUE);
    SwitchFocusHighlightOn();
    return list;
}

Elm_Genlist_Item_Class* ListWindow::s_CreateListItemTemplate()
{
    Elm_Genlist_Item_Class* itemClass = EFL_GUARD(elm_genlist_item_class_new);
    itemClass->item_style = "C_TextItem_WhiteSingleline02";
    itemClass->func.content_get = s_ContentGet;
    return itemClass;
}

Evas_Object* ListWindow::s_ContentGet(void* data, Evas_Object* object, const char* part)
{
    return CreateRow(static_cast<const char*>(data), object, part, s_numColumns);
}

void ListWindow::s_OnItemRealized(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR(" pthis == NULL");
        return;
    }
    static_cast<ListWindow*>(data)->m_list.FocusIfAllRealised();
}

void ListWindow::s_OnMenuItemClicked(void* data, Evas_Object* object, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR(" pthis == NULL");
        return;
    }
    auto* window = static_cast<ListWindow*>(data);
    if (window->m_selectable)
    {
        window->t_ItemSelectedCallback(static_cast<unsigned char>(MenuList::GetFocusElement(object)));
    }
}

} // namespace VESKAR_APP
