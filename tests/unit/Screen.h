/** What the tests of screens share: a TV, a window, a listener, and functions to look at a screen and press keys. */
#pragma once

#include "IUserInteraction.h"
#include "Tv.h"

#include <memory>
#include <string>

#include <gmock/gmock.h>

/** A new TV for each test. */
struct TvTest : testing::Test
{
    TvTest() { tv = Tv(); }
};

/** A new TV with a window on it, and the answers that the display under test gives. */
struct ScreenTest : TvTest, VESKAR_APP::IUserInteraction
{
    ScreenTest();
    ~ScreenTest() override;

    Texts answers; // "exit", "back", "key", "button N", "item N", "items NNN", "pin NNNN"
    Evas_Object* window;

private:
    void ExitKey() override { answers.push_back("exit"); }
    void BackKey() override { answers.push_back("back"); }
    void KeyPressed() override { answers.push_back("key"); }
    void ButtonPressed(unsigned char button) override { answers.push_back("button " + std::to_string(button)); }
    void ItemSelected(unsigned char item) override { answers.push_back("item " + std::to_string(item)); }
    void ItemsSelected(std::string items) override { answers.push_back("items " + items); }
    void PinEntered(std::string pin) override { answers.push_back("pin " + pin); }
};

/** Makes a display's protected members accessible. */
template <class Display>
struct Probe : Display
{
    using Display::Display;
    using Display::s_OnButtonClicked;
    using Display::s_OnKeyPressed;
    using Display::t_buttons;
    using Display::t_HideNumPad;
    using Display::t_ItemsSelectedCallback;
    using Display::t_OnButtonClicked;
    using Display::t_popup;
    using Display::t_SetSubtitle;
    using Display::t_ShowNumPad;
    using Display::t_subtitleLabel;
    using Display::t_ttsText;
    using Display::t_UpdateButtonLabels;
};

/** Runs the main loop until it has nothing left to do immediately. */
void Settle();

/** Runs the main loop; false when nothing ended it within `seconds`. */
bool LoopEnds(double seconds);

/** Writes an image file of one colour, given as three bytes; returns its path. */
std::string WritePicture(const std::string& name, const std::string& pixel);

/** The widgets of one type inside `root`, itself included, in the order of drawing. */
std::vector<Evas_Object*> Widgets(Evas_Object* root, const std::string& type);
std::vector<Evas_Object*> WidgetsOnScreen(Evas_Object* window, const std::string& type);

/** The texts of all labels inside `root`. */
Texts LabelTexts(Evas_Object* root);

std::string TextOf(Evas_Object* widget, const char* part = nullptr);

/** Sends a key to the widget and then to those around it, as the toolkit does. */
void Press(Evas_Object* widget, const char* key);

/** The widget that gets the keys once the window has the keyboard. */
Evas_Object* Focused(Evas_Object* window);

void Click(Evas_Object* widget);
