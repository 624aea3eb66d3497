// What the desk's toolkit assistant shows and says, on the application's own screens.

#include "Shown.h"

#include "appfw/Window.h"
#include "assist/Speech.h"
#include "assist/VoiceGuide.h"
#include "settings/SettingKeys.h"
#include "settings/SettingsWatch.h"

#include <algorithm>
#include <cstdlib>
#include <map>

#include <Ecore_Input.h>

namespace
{

using testing::ElementsAre;

Texts spoken;                                          // each with "at once" or "next" before it
std::map<std::string, std::function<void()>> watchers; // of settings

struct AssistTest : ShownTest
{
    AssistTest() { spoken.clear(); }

    /** For each cell of the PIN field whether this part of it is in this state. */
    std::string Cells(const char* part, const char* state)
    {
        Watch();
        std::string cells;
        for (Evas_Object* layout : WidgetsOnScreen(tv.window, "elm_layout"))
        {
            const Evas_Object* cell = elm_layout_edje_get(layout);
            if (edje_object_part_exists(cell, part))
            {
                cells += edje_object_part_state_get(cell, part, nullptr) == std::string(state) ? 'x' : '.';
            }
        }
        return cells;
    }
    /** The toolkit reports a key to the program before the widgets get it. */
    void ViewersKey(const char* key)
    {
        auto* event = static_cast<Ecore_Event_Key*>(std::calloc(1, sizeof(Ecore_Event_Key)));
        event->keyname = event->key = key;
        ecore_event_add(ECORE_EVENT_KEY_DOWN, event, nullptr, nullptr);
        Settle();
        Key(key);
        Watch();
    }
};

TEST_F(AssistTest, TheMarkOfTheNextDigitMovesAlongWithTheDigits)
{
    manager->ShowPinManager(1, 255, "T", "", "", 4, "");
    TakeKeyboard();
    EXPECT_EQ(Cells("next", "focus"), "x...");
    Key("1");
    EXPECT_EQ(Cells("next", "focus"), ".x..");
    Key("2");
    EXPECT_EQ(Cells("next", "focus"), "..x.");
    EXPECT_EQ(Cells("dot", "filled"), "xx..");
    Key("BackSpace");
    EXPECT_EQ(Cells("next", "focus"), ".x..");
    EXPECT_EQ(Cells("dot", "filled"), "x...");
}

/** The left and the right end of a part. */
std::pair<int, int> Across(const Evas_Object* layout, const char* part)
{
    int layoutX = 0;
    int x = 0;
    int width = 0;
    evas_object_geometry_get(layout, &layoutX, nullptr, nullptr, nullptr);
    edje_object_part_geometry_get(layout, part, &x, nullptr, &width, nullptr);
    return {layoutX + x, layoutX + x + width};
}

TEST_F(AssistTest, TheSheetOfAPinMakesRoomForTheNumberPad)
{
    Evas_Object* pad = elm_layout_add(tv.window);
    elm_layout_theme_set(pad, "numpad", "base", "default");
    evas_object_resize(pad, WIDTH, HEIGHT);
    evas_object_show(pad);
    manager->ShowPinManager(1, 255, "T", "", "", 4, "");
    TakeKeyboard();
    const auto sheet = [this](int padShown)
    {
        tv.numbers[veskar::NUMBER_PAD_SHOWN_KEY] = padShown;
        watchers[veskar::NUMBER_PAD_SHOWN_KEY]();
        Watch();
        const auto layouts = WidgetsOnScreen(tv.window, "edje");
        const auto hasSheet = [](const Evas_Object* layout)
        {
            return edje_object_part_exists(layout, "sheet");
        };
        return Across(*std::find_if(layouts.begin(), layouts.end(), hasSheet), "sheet");
    };
    const auto [padStart, padEnd] = Across(elm_layout_edje_get(pad), "ground");
    const auto [start, end] = sheet(1);
    EXPECT_EQ(end + 12, padStart);
    EXPECT_EQ(start, WIDTH - padEnd);
    EXPECT_EQ(sheet(0), std::make_pair(96, WIDTH - 96));
    evas_object_del(pad);
}

TEST_F(AssistTest, AScreenIsReadOutInFullUnlessTheViewerMovesOn)
{
    tv.numbers[veskar::VOICE_GUIDE_KEY] = 1;
    veskar::VoiceGuide::TheOne().FollowFocus();
    for (int screen = 0; screen < 2; ++screen)
    {
        spoken.clear();
        manager->ShowList(1, 255, "T", "", "", {"a", "b"}, "L", false, {}, true);
        TakeKeyboard();
        Watch();
        EXPECT_THAT(spoken, ElementsAre(testing::StartsWith("at once: T, "), "next: a, 1 of 2"));
        ViewersKey("Down");
        EXPECT_EQ(spoken.back(), "at once: b, 2 of 2");
    }
}

} // namespace

// What the assistant stands on; the parameters are those of the desk's own functions.
// NOLINTBEGIN(performance-unnecessary-value-param)

void veskar::Say(std::string text, std::string /*language*/, Turn turn)
{
    spoken.push_back((turn == Turn::AtOnce ? "at once: " : "next: ") + text);
}

Evas_Object* veskar::FirstWindow()
{
    return tv.window;
}

veskar::SettingsWatch::SettingsWatch(std::initializer_list<const char*> keys, std::function<void()> changed)
{
    watchers[*keys.begin()] = std::move(changed);
}

veskar::SettingsWatch::~SettingsWatch() = default;
// NOLINTEND(performance-unnecessary-value-param)
