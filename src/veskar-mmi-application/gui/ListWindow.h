#pragma once

#include "ListDisplay.h"

namespace VESKAR_APP
{

/** Rows in up to eight columns, to read or to choose one from. */
class ListWindow : public ListDisplay<ListWindow>
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

protected:
    bool t_Show() override;

    static Evas_Object* s_CreateMenuList(Evas_Object* parent);
    static Elm_Genlist_Item_Class* s_CreateListItemTemplate();
    static Evas_Object* s_ContentGet(void* data, Evas_Object* object, const char* part);
    static void s_OnMenuItemClicked(void* data, Evas_Object* object, void* eventInfo);

private:
    friend class ListDisplay<ListWindow>;

    static constexpr int HEADER_WIDTH = 1217;
    static constexpr int LIST_WIDTH = 1280; // the cells, and the margins and the bar beside them
    static constexpr LogLevel TRACE = LOG_LEVEL_DEBUG;
    static constexpr LogLevel FAULT = LOG_LEVEL_ERROR;

    static int s_numColumns;
};

} // namespace VESKAR_APP
