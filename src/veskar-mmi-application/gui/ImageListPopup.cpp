#include "ImageListPopup.h"

#include "EflGuard.h"
#include "Log.h"
#include "RowData.h"
#include "ScaledSize.h"

#include <string_view>

namespace VESKAR_APP
{

namespace
{

constexpr int MAX_IMAGE_WIDTH = 640;
constexpr int SPACER_WIDTH = 20;

} // namespace

const MenuListKind ImageListPopup::KIND = {
    1280, LOG_LEVEL_DEBUG, s_CreateListItemTemplate, s_ContentGet, s_OnMenuItemClicked, s_OnItemRealized,
};

const std::string ImageListPopup::KEY_DIRECTION_UP = "Up";
const std::string ImageListPopup::KEY_DIRECTION_DOWN = "Down";
int ImageListPopup::s_numColumns = 1;
bool ImageListPopup::s_menuFocused = false;

ImageListPopup::ImageListPopup(IUserInteraction& userInteraction, bool /*flag*/, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, {}, LARGE_POPUP_STYLE, true), m_list(KIND, this), m_image(nullptr),
      m_contentBox(nullptr), m_imageBox(nullptr), m_imageWidth(0), m_imageHeight(0), m_currentIndex(0)
{
    LOG_ENTRY();
}

bool ImageListPopup::SetMenuInformation(const std::string& title, const std::string& subTitle,
                                        const std::string& bottom, const std::string& format, bool firstRowHeader,
                                        const std::vector<std::string>& entries,
                                        const std::vector<std::string>& buttons,
                                        const std::vector<std::string>& imageLocations, int width, int height)
{
    t_SetTexts(title, subTitle, bottom);
    t_buttonLabels = buttons;
    m_list.SetMenuInformation(title, subTitle, bottom, format, firstRowHeader, entries);
    s_numColumns = ColumnCount(format);
    m_imageLocations = imageLocations;
    m_imageWidth = width;
    m_imageHeight = height;
    return true;
}

void ImageListPopup::SetFocusToList(bool firstElement)
{
    if (m_list.HasItems())
    {
        // Before the list is given the focus, or the first "focused" would be missed.
        const MainLoopSection section;
        evas_object_smart_callback_add(m_list.Widget(), "focused", s_OnMenuFocusd, this);
        evas_object_smart_callback_add(m_list.Widget(), "unfocused", s_OnMenuUnfocusd, this);
    }
    m_list.SetFocusToList(firstElement);
}

bool ImageListPopup::t_Show()
{
    LOG_ENTRY();
    return BaseDisplay::t_Show();
}

Evas_Object* ImageListPopup::m_CreateWindowContent(Evas_Object* parent, Evas_Object* box)
{
    LOG_ENTRY_INFO();
    m_contentBox = EFL_GUARD(elm_box_add, parent);
    if (m_contentBox == nullptr)
    {
        LOG_ERROR("ImageListPopup box cannot be added.");
        return nullptr;
    }
    {
        const MainLoopSection section;
        elm_box_horizontal_set(m_contentBox, EINA_TRUE);
        evas_object_size_hint_weight_set(m_contentBox, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
        evas_object_size_hint_align_set(m_contentBox, EVAS_HINT_FILL, EVAS_HINT_FILL);
    }
    if (!m_list.HasEntries())
    {
        LOG_ERROR("There are no entries to display. Returning");
        return nullptr;
    }
    Evas_Object* list = s_CreateMenuList(parent);
    t_SetTTSText(m_list.Fill(list, box), nullptr);
    LOG_DEBUG("Finished adding data to the list.");
    Evas_Object* spacer = EFL_GUARD(elm_box_add, m_contentBox);
    {
        const MainLoopSection section;
        evas_object_size_hint_weight_set(list, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
        evas_object_size_hint_align_set(list, EVAS_HINT_FILL, EVAS_HINT_FILL);
        elm_box_pack_end(m_contentBox, list);
        evas_object_show(list);
        evas_object_size_hint_min_set(spacer, SPACER_WIDTH, m_imageHeight);
        elm_box_pack_end(m_contentBox, spacer);
    }
    m_imageBox = EFL_GUARD(elm_box_add, m_contentBox);
    if (m_imageBox == nullptr)
    {
        LOG_ERROR("Image box cannot be added.");
    }
    else
    {
        m_UpdateImage();
        EFL_GUARD(elm_box_pack_end, m_contentBox, m_imageBox);
        EFL_GUARD(evas_object_show, m_imageBox);
    }
    EFL_GUARD(evas_object_show, m_contentBox);
    return m_contentBox;
}

Evas_Object* ImageListPopup::s_CreateMenuList(Evas_Object* parent)
{
    return AddEvenMenuList(parent, ELM_OBJECT_SELECT_MODE_DEFAULT, false);
}

Elm_Genlist_Item_Class* ImageListPopup::s_CreateListItemTemplate()
{
    Elm_Genlist_Item_Class* itemClass = EFL_GUARD(elm_genlist_item_class_new);
    itemClass->item_style = TEXT_ROW_STYLE;
    itemClass->func.text_get = s_TextGet;
    return itemClass;
}

char* ImageListPopup::s_TextGet(void* data, Evas_Object* /*object*/, const char* part)
{
    return CreateRowText(static_cast<const char*>(data), part);
}

Evas_Object* ImageListPopup::s_ContentGet(void* data, Evas_Object* object, const char* part)
{
    return CreateRow(static_cast<const char*>(data), object, part, s_numColumns);
}

void ImageListPopup::s_OnItemRealized(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR(" pthis == NULL");
        return;
    }
    static_cast<ImageListPopup*>(data)->m_list.FocusIfAllRealised();
}

void ImageListPopup::s_OnMenuItemClicked(void* data, Evas_Object* object, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR(" pthis == NULL");
        return;
    }
    static_cast<ImageListPopup*>(data)->t_ItemSelectedCallback(
        static_cast<unsigned char>(MenuList::GetFocusElement(object)));
}

void ImageListPopup::s_OnMenuFocusd(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR(" pthis == NULL");
        return;
    }
    s_menuFocused = true;
}

void ImageListPopup::s_OnMenuUnfocusd(void* data, Evas_Object* /*object*/, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR(" pthis == NULL");
        return;
    }
    s_menuFocused = false;
}

void ImageListPopup::m_UpdateImage()
{
    LOG_ENTRY_INFO();
    if (m_currentIndex >= m_imageLocations.size())
    {
        LOG_ERROR("Wrong index value!");
        return;
    }
    const std::string& path = m_imageLocations[m_currentIndex];
    if (path.empty())
    {
        LOG_ERROR("There are no images to display. We could still have text menu");
        EFL_GUARD(evas_object_hide, m_image); // the image of another row would be taken for this one's
        return;
    }
    LOG_DEBUG("Loading a new image file: " << path << " width:" << m_imageWidth << " height:" << m_imageHeight);
    if (m_image == nullptr)
    {
        m_image = EFL_GUARD(elm_image_add, m_contentBox);
    }
    if (m_image == nullptr)
    {
        LOG_ERROR("Error creating an image object!");
        return;
    }
    if (!EFL_GUARD(elm_image_file_set, m_image, path.c_str(), nullptr))
    {
        LOG_ERROR("Loading the image file has failed :" << path);
        return;
    }
    if (m_imageWidth > MAX_IMAGE_WIDTH)
    {
        // Kept for the images to come: all of one list are shown at one size.
        m_imageHeight = static_cast<int>(static_cast<long long>(m_imageHeight) * MAX_IMAGE_WIDTH / m_imageWidth);
        m_imageWidth = MAX_IMAGE_WIDTH;
        LOG_INFO("Image size greater than allowed. Resizing to " << m_imageWidth << " x " << m_imageHeight);
    }
    const int width = ScaledSize(m_imageWidth);
    const int height = ScaledSize(m_imageHeight);
    const int maxWidth = ScaledSize(MAX_IMAGE_WIDTH);
    {
        const MainLoopSection section;
        evas_object_size_hint_min_set(m_image, width, height);
        evas_object_size_hint_max_set(m_image, maxWidth, height);
        evas_object_size_hint_weight_set(m_image, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
        evas_object_size_hint_align_set(m_image, EVAS_HINT_FILL, EVAS_HINT_FILL);
        evas_object_show(m_image);
    }
    LOG_DEBUG("Current width: " << width << ", height:" << height);
    LOG_DEBUG("Ratio = " << 1);
    EFL_GUARD(elm_box_pack_end, m_imageBox, m_image);
}

void ImageListPopup::t_OnKeyPressed(void* event)
{
    LOG_ENTRY();
    if (!m_list.HasEntries())
    {
        return;
    }
    if (!s_menuFocused)
    {
        // The focus has left the list for the buttons below it: the Up that brings it back lands on the last row.
        m_currentIndex =
            static_cast<unsigned int>(m_list.FirstRowIsHeader() ? m_list.EntryCount() - 1 : m_list.EntryCount());
        LOG_ERROR("Menu not focused or there are no entries!");
        return;
    }
    // The entries bound the index, a header among them; past the last image there is an error line and no new image.
    const std::string_view key = static_cast<Evas_Event_Key_Down*>(event)->key;
    if (key == KEY_DIRECTION_UP && m_currentIndex > 0)
    {
        --m_currentIndex;
    }
    else if (key == KEY_DIRECTION_DOWN && m_currentIndex < m_list.EntryCount() - 1)
    {
        ++m_currentIndex;
    }
    LOG_INFO("KEY_UP/DOWN pressed. Current index update to " << m_currentIndex);
    m_UpdateImage();
}

} // namespace VESKAR_APP
