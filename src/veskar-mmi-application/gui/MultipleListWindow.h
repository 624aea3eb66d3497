#pragma once

#include "BaseDisplay.h"
#include "MenuList.h"

namespace VESKAR_APP
{

/** Rows with check boxes: the viewer marks any number of them and confirms with the first button. */
class MultipleListWindow : public BaseDisplay
{
public:
    /** Unless it is `selectable` the first button reports no rows. */
    MultipleListWindow(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow);
    ~MultipleListWindow() override = default;

    /** As ListWindow's; the cells of a row run together, and a header entry is not shown. */
    virtual bool SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                    const std::string& format, bool firstRowHeader,
                                    const std::vector<std::string>& entries, const std::vector<std::string>& buttons);

    /** As ListWindow's; also makes the first button report the marked rows, once more for each call. */
    void SetFocusToList(bool firstElement);

    /** The marked rows' items, or null without one. The list is the toolkit's. */
    static Eina_List* GetFocussedElements(const Evas_Object* genlist);

protected:
    bool t_Show() override;
    Evas_Object* m_CreateWindowContent(Evas_Object* parent, Evas_Object* box) override;

    static Evas_Object* s_CreateMenuList(Evas_Object* parent);
    static Elm_Genlist_Item_Class* s_CreateListItemTemplate();
    static char* s_TextGet(void* data, Evas_Object* object, const char* part);
    static Evas_Object* s_ContentGet(void* data, Evas_Object* object, const char* part);
    static void s_OnItemRealized(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnMenuItemClicked(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnDeleteButtonClicked(void* data, Evas_Object* object, void* eventInfo);

    MenuList m_list;

private:
    static const MenuListKind KIND;
    static int s_numColumns;

    bool m_selectable;
};

} // namespace VESKAR_APP
