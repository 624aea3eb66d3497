#include "BaseDisplay.h"

#include "EflGuard.h"
#include "Log.h"
#include "Markup.h"

#include <algorithm>
#include <string_view>

#include <aul.h>

#ifndef VESKAR_LAYOUT_FILE
#define VESKAR_LAYOUT_FILE "/usr/share/org.tizen.veskar-app/edje/kavro_layout.edj"
#endif

namespace VESKAR_APP
{

namespace
{

constexpr double BASE_SCALE = 2.0;

constexpr const char* LAYOUT_GROUP = "kavro_layout";
constexpr const char* LAYOUT_CONTENT_PART = "kavro_layout.content";

constexpr const char* BUTTON_STYLE = "C_ButtonBasic_WhiteText";
constexpr const char* RIGHT_DOCKED_STYLE = "C_PopupBasic_WhiteRightLarge";
constexpr const char* RIGHT_DOCKED_TITLE = "Delete Kavro Operator Profile";

constexpr const char* SETUP_WIZARD = "org.tizen.wizard";
constexpr const char* CHANNEL_SEARCH = "org.tizen.channel-search";
constexpr short LAYER_ABOVE_SETUP = 32767;

constexpr const char* KEY_EXIT = "XF86Exit";
constexpr const char* KEY_BACK = "XF86Back";

} // namespace

BaseDisplay::BaseDisplay(IUserInteraction& userInteraction, Evas_Object* mainWindow,
                         const std::vector<std::string>& buttonLabels, const std::string& popupStyle,
                         bool hasBottomText)
    : t_mainWindow(mainWindow), t_popup(nullptr), t_subtitleLabel(nullptr), t_buttonLabels(buttonLabels), t_buttons{},
      t_popupStyle(popupStyle), t_hasBottomText(hasBottomText), t_displayedButtons(0),
      t_userInteraction(userInteraction)
{
    EFL_GUARD(elm_app_base_scale_set, BASE_SCALE);
}

BaseDisplay::~BaseDisplay()
{
    LOG_ENTRY();
    EFL_GUARD(evas_object_del, t_popup);
}

bool BaseDisplay::Create()
{
    LOG_ENTRY();
    return t_Create();
}

bool BaseDisplay::Show()
{
    LOG_ENTRY();
    return t_IsVisible() || t_Show();
}

bool BaseDisplay::Hide()
{
    LOG_ENTRY();
    return !t_IsVisible() || t_Hide();
}

bool BaseDisplay::t_Create()
{
    if (t_mainWindow == nullptr)
    {
        LOG_ERROR("Main window not available");
        return false;
    }
    t_popup = m_CreateMainPopup(t_mainWindow);
    Evas_Object* layout = m_CreateWindowsLayout(t_popup);
    Evas_Object* box = m_CreateWindowsBox(t_popup);
    t_subtitleLabel = m_AddSubBottomTitle(box, t_subtitle);
    EFL_GUARD(evas_object_size_hint_weight_set, t_popup, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);

    Evas_Object* content = m_CreateWindowContent(layout, box);
    if (content != nullptr)
    {
        const MainLoopSection section;
        elm_object_part_content_set(layout, LAYOUT_CONTENT_PART, content);
        evas_object_show(layout);
        elm_box_pack_end(box, layout);
    }
    if (t_hasBottomText)
    {
        LOG_DEBUG("Bottom text exists " << t_bottomText);
        m_AddSubBottomTitle(box, t_bottomText);
    }
    {
        const MainLoopSection section;
        evas_object_show(box);
        elm_object_part_content_set(t_popup, nullptr, box);
        elm_win_resize_object_add(t_mainWindow, t_popup);
    }
    m_AddPopupButtons(t_popup);
    return true;
}

bool BaseDisplay::t_Show()
{
    EFL_GUARD(evas_object_show, t_popup);
    if (aul_app_is_running(SETUP_WIZARD) == 1 || aul_app_is_running(CHANNEL_SEARCH) == 1)
    {
        LOG_INFO("Adjusting the Kavro UI layer while running the setup wizard or channel-search app.");
        EFL_GUARD(evas_object_layer_set, t_mainWindow, LAYER_ABOVE_SETUP);
    }
    return true;
}

bool BaseDisplay::t_Hide()
{
    EFL_GUARD(evas_object_hide, t_popup);
    return true;
}

bool BaseDisplay::t_IsVisible() const
{
    if (t_popup == nullptr)
    {
        LOG_INFO("no popup, therefore visible is false");
        return false;
    }
    const bool visible = EFL_GUARD(evas_object_visible_get, t_popup);
    LOG_INFO("popup present " << (visible ? "and" : "but not") << " visible");
    return visible;
}

Evas_Object* BaseDisplay::m_CreateWindowContent(Evas_Object* /*layout*/, Evas_Object* /*box*/)
{
    return nullptr;
}

Evas_Object* BaseDisplay::m_CreateMainPopup(Evas_Object* parent)
{
    Evas_Object* popup = EFL_GUARD(elm_popup_add, parent);
    if (popup == nullptr)
    {
        LOG_ERROR("Popup cannot be added.");
        return nullptr;
    }
    if (!t_popupStyle.empty())
    {
        // The question whether to delete a profile stands at the right edge, beside the menu, on every kind of screen.
        const char* style = t_title == RIGHT_DOCKED_TITLE ? RIGHT_DOCKED_STYLE : t_popupStyle.c_str();
        EFL_GUARD(elm_object_style_set, popup, style);
    }
    const MainLoopSection section;
    elm_object_part_text_set(popup, "title,text", t_title.c_str());
    evas_object_event_callback_add(popup, EVAS_CALLBACK_KEY_DOWN, s_OnKeyPressed, this);
    return popup;
}

Evas_Object* BaseDisplay::m_CreateWindowsLayout(Evas_Object* parent)
{
    Evas_Object* layout = EFL_GUARD(elm_layout_add, parent);
    if (layout == nullptr)
    {
        LOG_ERROR("Layout cannot be added.");
        return nullptr;
    }
    if (!EFL_GUARD(elm_layout_file_set, layout, VESKAR_LAYOUT_FILE, LAYOUT_GROUP))
    {
        LOG_ERROR("Could not load layout file.");
        return nullptr;
    }
    EFL_GUARD(evas_object_size_hint_align_set, layout, EVAS_HINT_FILL, EVAS_HINT_FILL);
    EFL_GUARD(evas_object_size_hint_weight_set, layout, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    return layout;
}

Evas_Object* BaseDisplay::m_CreateWindowsBox(Evas_Object* parent)
{
    Evas_Object* box = EFL_GUARD(elm_box_add, parent);
    if (box == nullptr)
    {
        LOG_ERROR("Box cannot be added.");
        return nullptr;
    }
    EFL_GUARD(elm_box_horizontal_set, box, EINA_FALSE);
    EFL_GUARD(evas_object_size_hint_weight_set, box, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    EFL_GUARD(evas_object_size_hint_align_set, box, EVAS_HINT_FILL, EVAS_HINT_FILL);
    return box;
}

Evas_Object* BaseDisplay::m_AddSubBottomTitle(Evas_Object* box, const std::string& text)
{
    LOG_DEBUG("Sub/bottom title text: " << text);
    Evas_Object* label = EFL_GUARD(elm_label_add, box);
    if (label == nullptr)
    {
        return nullptr;
    }
    m_AlignLabelText(label, text);
    EFL_GUARD(elm_box_pack_end, box, label);
    EFL_GUARD(evas_object_show, label);
    return label;
}

void BaseDisplay::m_AddPopupButtons(Evas_Object* popup)
{
    t_displayedButtons = static_cast<unsigned char>(t_buttonLabels.size());
    // The counts go to the log as they are, one byte each; whoever reads these lines expects that.
    LOG_DEBUG("Number of buttons:" << t_displayedButtons);
    if (t_displayedButtons > MAX_BUTTONS)
    {
        LOG_WARN("Too many buttons (" << t_displayedButtons << " when maximum is " << MAX_BUTTONS << ")");
        t_displayedButtons = MAX_BUTTONS;
    }
    if (t_displayedButtons == 0)
    {
        LOG_DEBUG("No buttons are added.");
        return;
    }
    for (unsigned char i = 0; i < t_displayedButtons; ++i)
    {
        const std::string part = "button" + std::to_string(i + 1);
        const MainLoopSection section;
        t_buttons[i] = elm_button_add(popup);
        elm_object_part_content_set(popup, part.c_str(), t_buttons[i]);
        elm_object_style_set(t_buttons[i], BUTTON_STYLE);
        evas_object_smart_callback_add(t_buttons[i], "clicked", s_OnButtonClicked, this);
    }
    // Of more labels than buttons none is shown: three of four answers would mislead.
    t_UpdateButtonLabels(t_buttonLabels);
}

void BaseDisplay::t_SetTitle(const std::string& title)
{
    s_StoreMarkupText(title, t_title);
}

void BaseDisplay::t_SetSubtitle(const std::string& subtitle)
{
    s_StoreMarkupText(subtitle, t_subtitle);
    m_AlignLabelText(t_subtitleLabel, t_subtitle);
}

void BaseDisplay::t_SetBottomText(const std::string& text)
{
    if (text.empty())
    {
        return;
    }
    t_hasBottomText = true;
    s_StoreMarkupText(text, t_bottomText);
}

void BaseDisplay::t_SetTexts(const std::string& title, const std::string& subtitle, const std::string& bottom)
{
    t_SetTitle(title);
    t_SetSubtitle(subtitle);
    t_SetBottomText(bottom);
}

void BaseDisplay::t_UpdateButtonLabels(const std::vector<std::string>& labels)
{
    if (labels.size() != t_displayedButtons)
    {
        LOG_ERROR("Size mismatch: labels.size() [" << labels.size() << "] != t_displayedButtons ["
                                                   << static_cast<int>(t_displayedButtons) << "]");
        return;
    }
    for (std::size_t i = 0; i < labels.size(); ++i)
    {
        if (labels[i].empty())
        {
            EFL_GUARD(evas_object_hide, t_buttons[i]);
            continue;
        }
        const std::string markup = ToMarkup(labels[i]);
        const MainLoopSection section;
        elm_object_domain_translatable_part_text_set(t_buttons[i], nullptr, nullptr, markup.c_str());
        evas_object_show(t_buttons[i]);
        if (i == 0)
        {
            elm_object_focus_set(t_buttons[i], EINA_TRUE);
        }
    }
}

void BaseDisplay::s_OnKeyPressed(void* data, Evas* /*evas*/, Evas_Object* /*object*/, void* eventInfo)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR("pthis == NULL");
        return;
    }
    static_cast<BaseDisplay*>(data)->t_OnKeyPressed(eventInfo);
}

void BaseDisplay::s_OnButtonClicked(void* data, Evas_Object* object, void* /*eventInfo*/)
{
    LOG_ENTRY();
    if (data == nullptr)
    {
        LOG_ERROR("pthis == NULL");
        return;
    }
    auto* display = static_cast<BaseDisplay*>(data);
    const auto& buttons = display->t_buttons;
    const auto button = std::find(buttons.begin(), buttons.end(), object);
    if (button == buttons.end())
    {
        LOG_ERROR("Unexpected buttonClicked event on unrecognized event source " << object);
        return;
    }
    display->t_OnButtonClicked(static_cast<unsigned char>(button - buttons.begin() + 1));
}

void BaseDisplay::t_OnKeyPressed(void* eventInfo)
{
    LOG_ENTRY();
    const std::string_view key = static_cast<Evas_Event_Key_Down*>(eventInfo)->key;
    if (key == KEY_EXIT)
    {
        t_ExitKeyCallback();
    }
    else if (key == KEY_BACK)
    {
        t_BackKeyCallback();
    }
    else
    {
        t_KeyPressedCallback();
    }
}

void BaseDisplay::t_OnButtonClicked(unsigned char buttonIndex)
{
    LOG_DEBUG("Button index:" << static_cast<int>(buttonIndex));
    t_ButtonPressedCallback(buttonIndex);
}

void BaseDisplay::t_ExitKeyCallback()
{
    LOG_ENTRY();
    t_userInteraction.ExitKey();
}

void BaseDisplay::t_BackKeyCallback()
{
    LOG_ENTRY();
    t_userInteraction.BackKey();
}

void BaseDisplay::t_KeyPressedCallback()
{
    LOG_ENTRY();
    t_userInteraction.KeyPressed();
}

void BaseDisplay::t_ButtonPressedCallback(unsigned char button)
{
    LOG_ENTRY();
    t_userInteraction.ButtonPressed(button);
}

void BaseDisplay::t_ItemSelectedCallback(unsigned char item)
{
    LOG_ENTRY();
    t_userInteraction.ItemSelected(item);
}

void BaseDisplay::t_ItemsSelectedCallback(const std::string& items)
{
    LOG_ENTRY();
    for (const char character : items)
    {
        LOG_DEBUG("t_ItemsSelectedCallback: " << character);
    }
    t_userInteraction.ItemsSelected(items);
}

void BaseDisplay::t_PinEnteredCallback(const std::string& pin)
{
    LOG_ENTRY();
    t_userInteraction.PinEntered(pin);
}

} // namespace VESKAR_APP
