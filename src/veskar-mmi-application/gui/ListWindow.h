#pragma once

#include "BaseDisplay.h"
#include "MenuList.h"

namespace VESKAR_APP
{

/** Rows in up to eight columns, to read or to choose one from. */
class ListWindow : public BaseDisplay
{
public:
    /** Unless it is `selectable` a pressed row reports nothing. */
    ListWindow(IUserInteraction& userInteraction, bool selectable, Evas_Object* mainWindow);
    ~ListWindow() override = default;

    /**
     * The screen's content, to be given before Create; always true. `format` has one letter a column: L left, R right,
     * C centred. An entry is one row, its cells separated by tabs; with `firstRowHeader` the first one is the header.
     */
    virtual bool SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                    const std::string& format, bool firstRowHeader,
                                    const std::vector<std::string>& entries, const std::vector<std::string>& buttons);

    /** Moves the focus into the list as soon as all its rows exist; `firstElement` changes the log alone. */
    void SetFocusToList(bool firstElement);

protected:
    bool t_Show() override;
    Evas_Object* m_CreateWindowContent(Evas_Object* parent, Evas_Object* box) override;

    static Evas_Object* s_CreateMenuList(Evas_Object* parent);
    static Elm_Genlist_Item_Class* s_CreateListItemTemplate();
    static Evas_Object* s_ContentGet(void* data, Evas_Object* object, const char* part);
    static void s_OnItemRealized(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnMenuItemClicked(void* data, Evas_Object* object, void* eventInfo);

    MenuList m_list;

private:
    static const MenuListKind KIND;
    static int s_numColumns;

    bool m_selectable;
};

} // namespace VESKAR_APP
