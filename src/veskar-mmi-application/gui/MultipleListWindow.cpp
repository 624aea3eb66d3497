#include "MultipleListWindow.h"

#include "EflGuard.h"
#include "Log.h"
#include "RowData.h"

#include <algorithm>
#include <cstring>

namespace VESKAR_APP
{

const MenuListKind MultipleListWindow::KIND = {
    1280, LOG_LEVEL_INFO, s_CreateListItemTemplate, s_ContentGet, s_OnMenuItemClicked, s_OnItemRealized,
};

int MultipleListWindow::s_numColumns = 1;

MultipleListWindow::MultipleListWindow(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, LARGE_POPUP_STYLE, true), m_list(KIND, this),
      m_selectable(selectable)
{
    LOG_ENTRY();
}

bool MultipleListWindow::SetMenuInformation(const std::string& title, const std::string& subTitle,
                                            const std::string& bottom, const std::string& format, bool firstRowHeader,
                                            const std::vector<std::string>& entries,
                                            const std::vector<std::string>& buttons)
{
    t_SetTexts(title, subTitle, bottom);
    t_buttonLabels = buttons;
    m_list.SetMenuInformation(title, subTitle, bottom, format, firstRowHeader, entries);
    s_numColumns = ColumnCount(format);
    return true;
}

void MultipleListWindow::SetFocusToList(bool firstElement)
{
    m_list.SetFocusToList(firstElement);
    if (!m_list.HasItems() || t_buttons[0] == nullptr)
    {
        return;
    }
    EFL_GUARD(evas_object_smart_callback_add, t_buttons[0], "clicked", s_OnDeleteButtonClicked, this);
}

bool MultipleListWindow::t_Show()
{
    LOG_ENTRY_INFO();
    return BaseDisplay::t_Show();
}

Evas_Object* MultipleListWindow::m_CreateWindowContent(Evas_Object* parent, Evas_Object* box)
{
    LOG_ENTRY();
    Evas_Object* list = s_CreateMenuList(parent);
    t_SetTTSText(m_list.Fill(list, box), nullptr);
    LOG_INFO("Finished adding data to the list.");
    EFL_GUARD(evas_object_show, list);
    return list;
}

Evas_Object* MultipleListWindow::s_CreateMenuList(Evas_Object* parent)
{
    return AddEvenMenuList(parent, ELM_OBJECT_SELECT_MODE_ALWAYS, true);
}

Elm_Genlist_Item_Class* MultipleListWindow::s_CreateListItemTemplate()
{
    LOG_ENTRY_INFO();
    Elm_Genlist_Item_Class* itemClass = EFL_GUARD(elm_genlist_item_class_new);
    itemClass->item_style = TEXT_ROW_STYLE;
    itemClass->func.text_get = s_TextGet;
    itemClass->func.content_get = s_ContentGet;
    return itemClass;
}

char* MultipleListWindow::s_TextGet(void* data, Evas_Object* /*object*/, const char* part)
{
    return CreateRowText(static_cast<const char*>(data), part);
}

Evas_Object* MultipleListWindow::s_ContentGet(void* /*data*/, Evas_Object* object, const char* part)
{
    // The list asks here for its header too. It is not shown; it only takes the first entry.
    if (std::strcmp(part, BODY_PART) != 0)
    {
        return nullptr;
    }
    LOG_INFO("Displaying " << part << " on the screen currently.");
    const MainLoopSection section;
    Evas_Object* check = elm_check_add(object);
    elm_object_style_set(check, "C_Checkbox_White");
    evas_object_size_hint_weight_set(check, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    evas_object_size_hint_align_set(check, EVAS_HINT_FILL, EVAS_HINT_FILL);
    elm_object_focus_allow_set(check, EINA_FALSE);
    evas_object_show(check);
    return check;
}

void MultipleListWindow::s_OnItemRealized(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_INFO(" pthis == NULL");
        return;
    }
    static_cast<MultipleListWindow*>(data)->m_list.FocusIfAllRealised();
}

void MultipleListWindow::s_OnMenuItemClicked(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    if (data == nullptr)
    {
        LOG_INFO(" pthis == NULL");
    }
}

Eina_List* MultipleListWindow::GetFocussedElements(const Evas_Object* genlist)
{
    const Eina_List* selected = EFL_GUARD(elm_genlist_selected_items_get, genlist);
    if (selected == nullptr)
    {
        LOG_INFO("selected_genlist_item == NULL");
    }
    return const_cast<Eina_List*>(selected);
}

void MultipleListWindow::s_OnDeleteButtonClicked(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    if (data == nullptr)
    {
        LOG_INFO(" pthis == NULL");
        return;
    }
    auto* window = static_cast<MultipleListWindow*>(data);
    if (!window->m_selectable)
    {
        return;
    }
    const Eina_List* selected = GetFocussedElements(window->m_list.Widget());
    if (selected == nullptr)
    {
        LOG_INFO(" selectedItems == NULL");
        return;
    }
    std::string indexes;
    for (const Eina_List* node = selected; node != nullptr; node = eina_list_next(node))
    {
        auto* item = static_cast<Elm_Object_Item*>(eina_list_data_get(node));
        indexes += std::to_string(EFL_GUARD(elm_genlist_item_index_get, item));
    }
    // By digit, not by row: that is the form in which the middleware takes the selection.
    std::sort(indexes.begin(), indexes.end());
    window->t_ItemsSelectedCallback(indexes);
}

} // namespace VESKAR_APP
