#pragma once

#include "Log.h"

#include <memory>
#include <string>
#include <vector>

#include <Elementary.h>

namespace VESKAR_APP
{

/** A new list without any setting, or null with an error line. */
Evas_Object* AddMenuList(Evas_Object* parent);

/** A new list whose rows are all of one height, ready but for its rows; or null with an error line. */
Evas_Object* AddEvenMenuList(Evas_Object* parent, Elm_Object_Select_Mode selectMode, bool multiSelect);

/** Both inside a main-loop section of the caller's. */
void ApplyMenuListLook(Evas_Object* list);
void SwitchFocusHighlightOn();

/** In what one kind of list differs from the others. */
struct MenuListKind
{
    int headerWidth;                                // design pixels
    LogLevel trace;                                 // of the steps
    Elm_Genlist_Item_Class* (*createRowTemplate)(); // freed by the list
    Elm_Gen_Item_Content_Get_Cb createHeader;       // for the header part
    Evas_Smart_Cb onRowPressed;                     // both get the screen as their data
    Evas_Smart_Cb onRowRealised;                    // calls FocusIfAllRealised
};

/**
 * The rows of a list screen: a header, and a toolkit list with the body rows. The screen owns it and creates the
 * toolkit list, which is a widget of the screen and outlives this.
 */
class MenuList
{
public:
    /** `screen` is handed to the callbacks. */
    MenuList(const MenuListKind& kind, void* screen);
    ~MenuList();

    MenuList(const MenuList&) = delete;
    MenuList& operator=(const MenuList&) = delete;

    /** Stores the rows and writes the texts to the log. An entry is one row, its cells separated by tabs. */
    void SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                            const std::string& format, bool firstRowHeader, const std::vector<std::string>& entries);

    bool HasEntries() const { return !m_entries.empty(); }
    std::size_t EntryCount() const { return m_entries.size(); }
    bool HasItems() const { return !m_menuItems.empty(); }
    bool FirstRowIsHeader() const { return m_firstRowHeader; }

    /** The toolkit list, or null before Fill. */
    Evas_Object* Widget() const { return m_menuList; }

    /** Takes the toolkit list, puts the header row at the end of `box`, adds the body rows. Gives what to speak. */
    std::string Fill(Evas_Object* menuList, Evas_Object* box);

    /** Moves the focus into the list as soon as all its rows exist; `firstElement` changes the log alone. */
    void SetFocusToList(bool firstElement);

    /** Focuses the list when every row is realised; false when no row is. */
    bool FocusIfAllRealised();

    /** The toolkit's index of the pressed row, -1 without one. */
    static int GetFocusElement(const Evas_Object* genlist);

private:
    void m_CreateListHeader(std::string headerEntry, Evas_Object* box);
    std::string m_PopulateList(Elm_Genlist_Item_Class* itemClass);

    const MenuListKind& m_kind;
    void* m_screen;
    Evas_Object* m_menuList;
    std::vector<std::shared_ptr<Elm_Object_Item>> m_menuItems; // deletes the toolkit's items
    std::string m_format;
    std::vector<std::string> m_entries; // the rows' data points into them: not changed while the list lives
    bool m_firstRowHeader;
};

} // namespace VESKAR_APP
