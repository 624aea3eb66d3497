// What the desk's toolkit assistant shows and says, on the application's own screens.

#include "Shown.h"

#include "appfw/Window.h"
#include "assist/Speech.h"
#include "assist/VoiceGuide.h"
#include "settings/SettingKeys.h"
#include "settings/SettingsWatch.h"

#include <cstdlib>

#include <Ecore_Input.h>

namespace
{

using testing::ElementsAre;

Texts spoken; // each with "at once" or "next" before it

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

veskar::SettingsWatch::SettingsWatch(std::initializer_list<const char*> /*keys*/, std::function<void()> /*changed*/) {}

veskar::SettingsWatch::~SettingsWatch() = default;
// NOLINTEND(performance-unnecessary-value-param)
