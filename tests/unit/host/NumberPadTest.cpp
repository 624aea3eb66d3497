/** What the number pad types, without its window. */
#include "numpad/NumberPad.h"
#include "remote/RemoteClient.h"
#include "remote/RemoteSocketPath.h"

#include <cstdlib>
#include <cstring>
#include <string>

#include <Ecore_Input.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace veskar;
using testing::ElementsAre;

namespace
{

std::vector<std::string> typed;

void Feed(int event, const char* key)
{
    auto* data = static_cast<Ecore_Event_Key*>(std::calloc(1, sizeof(Ecore_Event_Key)));
    data->key = key;
    ecore_event_add(event, data, nullptr, nullptr);
    ecore_main_loop_iterate();
}

} // namespace

TEST(NumberPad, AReturnThatIsHeldTypesOneDigit)
{
    ecore_event_init();
    {
        setenv("VESKAR_MEMORY_DIR", testing::TempDir().c_str(), 1); // it writes that it is gone
        PadWindow window([] {});
        const NumberPad pad(true, window, [] {});
        for (const char* key : {"Return", "Return", "Return", "Right", "Return"}) // the toolkit repeats it
        {
            Feed(ECORE_EVENT_KEY_DOWN, key);
        }
        EXPECT_THAT(typed, ElementsAre("press 1"));
        Feed(ECORE_EVENT_KEY_UP, "Return");
        Feed(ECORE_EVENT_KEY_DOWN, "Return");
        EXPECT_THAT(typed, ElementsAre("press 1", "press 2"));
    }
    ecore_event_shutdown();
}

// What the pad stands on; the declarations are those of the real ones.
// NOLINTBEGIN(performance-unnecessary-value-param,modernize-use-equals-default)

PadWindow::PadWindow(std::function<void()> /*alone*/) : m_window(nullptr) {}
void PadWindow::Show(const KeyGrid& /*keys*/, std::function<void()> /*appeared*/) {}
void PadWindow::Hide() {}
void PadWindow::SetCurrent(std::size_t /*key*/) {}

HeldKeys::HeldKeys(Evas_Object* /*window*/) {}
HeldKeys::~HeldKeys() {}

RemoteClient::RemoteClient(const std::string& /*path*/) {}
std::vector<std::string> RemoteClient::Ask(const std::string& command)
{
    typed.push_back(command);
    return {};
}
// NOLINTEND(performance-unnecessary-value-param,modernize-use-equals-default)
