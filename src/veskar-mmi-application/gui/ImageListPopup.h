#pragma once

#include "BaseDisplay.h"
#include "MenuList.h"

namespace VESKAR_APP
{

/** A list, and beside it the image that belongs to the row the viewer is on. */
class ImageListPopup : public BaseDisplay
{
public:
    /** Nothing depends on `flag`. */
    ImageListPopup(IUserInteraction& userInteraction, bool flag, Evas_Object* mainWindow);
    ~ImageListPopup() override = default;

    /**
     * As ListWindow's, with one image file for each body row; `width` and `height` are design pixels, and a width over
     * 640 is brought down to it with the height in proportion.
     */
    virtual bool SetMenuInformation(const std::string& title, const std::string& subTitle, const std::string& bottom,
                                    const std::string& format, bool firstRowHeader,
                                    const std::vector<std::string>& entries, const std::vector<std::string>& buttons,
                                    const std::vector<std::string>& imageLocations, int width, int height);

    /** As ListWindow's; also follows the list's focus. */
    void SetFocusToList(bool firstElement);

protected:
    bool t_Show() override;
    void t_OnKeyPressed(void* event) override;
    Evas_Object* m_CreateWindowContent(Evas_Object* parent, Evas_Object* box) override;

    static Evas_Object* s_CreateMenuList(Evas_Object* parent);
    static Elm_Genlist_Item_Class* s_CreateListItemTemplate();
    static char* s_TextGet(void* data, Evas_Object* object, const char* part);
    static Evas_Object* s_ContentGet(void* data, Evas_Object* object, const char* part);
    static void s_OnItemRealized(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnMenuItemClicked(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnMenuFocusd(void* data, Evas_Object* object, void* eventInfo);
    static void s_OnMenuUnfocusd(void* data, Evas_Object* object, void* eventInfo);

    void m_UpdateImage();

    MenuList m_list;

private:
    static const MenuListKind KIND;

    static const std::string KEY_DIRECTION_UP;
    static const std::string KEY_DIRECTION_DOWN;

    static int s_numColumns;
    static bool s_menuFocused; // of whichever image list is on the screen; it outlives the display

    Evas_Object* m_image;
    Evas_Object* m_contentBox;
    Evas_Object* m_imageBox;
    std::vector<std::string> m_imageLocations;
    int m_imageWidth;
    int m_imageHeight;
    unsigned int m_currentIndex;
};

} // namespace VESKAR_APP
