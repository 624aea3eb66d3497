#pragma once

#include "IUserInteraction.h"

#include <array>
#include <string>
#include <vector>

#include <Elementary.h>

namespace VESKAR_APP
{

/**
 * One screen: a popup on the main window with a title, a subtitle, the derived class's content, a bottom line and up to
 * three buttons. The owner constructs it, calls Create, Show and Hide, and deletes it; what follows an answer is the
 * owner's decision, the display never hides itself.
 *
 * Every widget of a screen is a descendant of its popup, which the destructor deletes.
 */
class BaseDisplay
{
public:
    /**
     * `popupStyle` is the theme's name for the popup, empty for the theme's default. `userInteraction` and `mainWindow`
     * stay the caller's and outlive the display.
     */
    BaseDisplay(IUserInteraction& userInteraction, Evas_Object* mainWindow,
                const std::vector<std::string>& buttonLabels, const std::string& popupStyle, bool hasBottomText);
    virtual ~BaseDisplay();

    BaseDisplay(const BaseDisplay&) = delete;
    BaseDisplay& operator=(const BaseDisplay&) = delete;

    /** Builds the screen without showing it; false when there is no main window. */
    bool Create();

    /** Both do nothing and return true when the screen is in that state already. */
    bool Show();
    bool Hide();

    /** The number of lines of a layout widget's text block; 0 where there is none. */
    int GetNumberLinesText(const Evas_Object* object, const char* partName);

    /** Puts the toolkit markup that shows `text` as typed into `out`. */
    static void s_StoreMarkupText(const std::string& text, std::string& out);

    /** The viewer's accessibility settings, read at each call. */
    static bool s_CheckEnlargedMode();
    static bool s_CheckHighContrastMode();

protected:
    static constexpr unsigned char MAX_BUTTONS = 3;

    /** The theme's names for the popup of most screens and for the larger one. */
    static constexpr const char* POPUP_STYLE = "C_PopupBasic_WhiteBottom";
    static constexpr const char* LARGE_POPUP_STYLE = "C_PopupBasic_WhiteBottomLarge";

    /** The style of the lines above and below the content, and of a message. */
    static constexpr const char* LABEL_STYLE = "popup/c_popup_bottom";

    virtual bool t_Create();
    virtual bool t_Show();
    virtual bool t_Hide();
    virtual bool t_IsVisible() const;

    /** `eventInfo` is the Evas_Event_Key_Down. */
    virtual void t_OnKeyPressed(void* eventInfo);

    /** `buttonIndex` counts from 1. */
    virtual void t_OnButtonClicked(unsigned char buttonIndex);

    /** Speaks title, subtitle, `text` and bottom line; `object` is not used. */
    virtual void t_SetTTSText(const std::string& text, Evas_Object* object);

    /** The screen's own part, a child of `layout`; null for none. `box` takes rows that stand above it. */
    virtual Evas_Object* m_CreateWindowContent(Evas_Object* layout, Evas_Object* box);

    /** Takes effect in t_Create. */
    void t_SetTitle(const std::string& title);

    /** Takes effect in t_Create, and at once on a screen that is already built. */
    void t_SetSubtitle(const std::string& subtitle);

    /** Takes effect in t_Create; an empty text changes nothing. */
    void t_SetBottomText(const std::string& text);

    /** All three. */
    void t_SetTexts(const std::string& title, const std::string& subtitle, const std::string& bottom);

    /** One label for each created button; an empty one hides its button, the first one takes the focus. */
    void t_UpdateButtonLabels(const std::vector<std::string>& labels);

    /** Each reports one answer of the viewer to the listener. */
    void t_ExitKeyCallback();
    void t_BackKeyCallback();
    void t_KeyPressedCallback();
    void t_ButtonPressedCallback(unsigned char button);
    void t_ItemSelectedCallback(unsigned char item);
    void t_ItemsSelectedCallback(const std::string& items);
    void t_PinEnteredCallback(const std::string& pin);

    /** The platform's number pad, an application of its own; `numbersOnly` chooses the plainer of its two layouts. */
    void t_ShowNumPad(bool numbersOnly);
    void t_HideNumPad();
    bool m_CheckKeyPadShown();
    bool m_CheckSmartControlSupported();

    /** The steps of t_Create; each gives null where the toolkit does. */
    Evas_Object* m_CreateMainPopup(Evas_Object* parent);
    Evas_Object* m_CreateWindowsLayout(Evas_Object* parent);
    Evas_Object* m_CreateWindowsBox(Evas_Object* parent);
    Evas_Object* m_AddSubBottomTitle(Evas_Object* box, const std::string& text);
    void m_AddPopupButtons(Evas_Object* popup);

    /** Formats a subtitle or bottom label; `text` is markup. For a null label only the log lines are written. */
    void m_AlignLabelText(Evas_Object* label, const std::string& text);

    static void s_OnKeyPressed(void* data, Evas* evas, Evas_Object* object, void* eventInfo);
    static void s_OnButtonClicked(void* data, Evas_Object* object, void* eventInfo);

    Evas_Object* t_mainWindow;
    Evas_Object* t_popup;
    Evas_Object* t_subtitleLabel;
    std::string t_title; // markup, as the two other texts are
    std::string t_subtitle;
    std::vector<std::string> t_buttonLabels;
    std::array<Evas_Object*, MAX_BUTTONS> t_buttons;
    std::string t_popupStyle;
    bool t_hasBottomText;
    std::string t_bottomText;
    unsigned char t_displayedButtons;
    std::string t_ttsText;
    IUserInteraction& t_userInteraction;
};

} // namespace VESKAR_APP
