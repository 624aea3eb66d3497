#include "ListWindow.h"

#include "EflGuard.h"
#include "ListRow.h"
#include "MenuList.h"

namespace VESKAR_APP
{

int ListWindow::s_numColumns = 1;

ListWindow::ListWindow(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow)
    : ListDisplay(userInteraction, selectable, mainWindow)
{
}

bool ListWindow::SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                    const std::string& format, bool firstRowHeader,
                                    const std::vector<std::string>& entries, const std::vector<std::string>& buttons)
{
    m_StoreMenuInformation(title, subTitle, bottom, format, firstRowHeader, entries, buttons);
    return true;
}

bool ListWindow::t_Show()
{
    LOG_ENTRY();
    SetFocusToList(true);
    return BaseDisplay::t_Show();
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
    // A list asks for no width by itself, and a row's cells do not give way: a panel at the side has to be wide enough.
    evas_object_size_hint_min_set(parent, ELM_SCALE_SIZE(LIST_WIDTH), 0);
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
        window->t_ItemSelectedCallback(static_cast<unsigned char>(GetFocusElement(object)));
    }
}

} // namespace VESKAR_APP
