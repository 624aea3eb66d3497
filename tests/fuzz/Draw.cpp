// A screen with any texts, from the window manager's call to its first frames, within a bound of processor time. The
// first byte chooses the screen; the texts follow, in which a byte that is not UTF-8 becomes a combining mark.

#include "Input.h"
#include "Toolkit.h"
#include "Tv.h"
#include "WindowManager.h"
#include "appfw/Window.h"
#include "assist/Speech.h"
#include "settings/SettingsWatch.h"

#include <ctime>

#include <Ecore_Evas.h>

// What has no part in drawing; the parameters are those of the desk's own functions.
// NOLINTBEGIN(performance-unnecessary-value-param)
extern "C" void ecore_wl2_sync(void) {}
void veskar::Say(std::string /*text*/, std::string /*language*/, Turn /*turn*/) {}
veskar::SettingsWatch::SettingsWatch(std::initializer_list<const char*> /*keys*/, std::function<void()> /*changed*/) {}
veskar::SettingsWatch::~SettingsWatch() = default;
// NOLINTEND(performance-unnecessary-value-param)

namespace
{

constexpr double BOUND = 0.2; // seconds
constexpr int MOST_TABS = 64; // a request with more in a row is refused

std::string Valid(const std::string& bytes)
{
    constexpr Eina_Unicode FIRST_MARK = 0x300;
    std::vector<Eina_Unicode> characters;
    int at = 0;
    for (Eina_Unicode next = 0; (next = eina_unicode_utf8_next_get(bytes.c_str(), &at)) != 0;)
    {
        const bool isCharacter = next < 0xD800 || (next > 0xDFFF && next < 0x110000);
        characters.push_back(isCharacter ? next : FIRST_MARK + next % 0x70);
    }
    characters.push_back(0); // the toolkit reads one behind the range
    int length = 0;
    char* text =
        eina_unicode_unicode_to_utf8_range(characters.data(), static_cast<int>(characters.size()) - 1, &length);
    std::string valid(text, static_cast<std::size_t>(length));
    free(text);
    return valid;
}

double Now()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/** Processor seconds of this thread, up to the second frame: some of the sizes are known after the first. */
double Draw(VESKAR_APP::WindowManager& manager, int kind, const Texts& texts)
{
    tv.Forget();
    const Texts buttons{texts[4], texts[5]};
    const Texts rows(texts.begin() + 6, texts.end());
    const double start = Now();
    kind % 6 == 0   ? manager.ShowMessage(1, 255, texts[0], texts[1], texts[2], texts[3], buttons, false)
    : kind % 6 == 1 ? manager.ShowList(1, 255, texts[0], texts[1], texts[2], rows, "LCR", true, buttons, true)
    : kind % 6 == 2 ? manager.ShowMultipleList(1, 255, texts[0], texts[1], texts[2], rows, "L", false, buttons, true)
    : kind % 6 == 3 ? manager.ShowProgress(1, 255, texts[0], texts[1], texts[2], 50)
    : kind % 6 == 4 ? manager.ShowLoading(1, 255, texts[3], buttons, 0)
                    : manager.ShowPinManager(1, 255, texts[0], texts[1], texts[2], 4, texts[3]);
    for (int frame = 0; frame < 2; ++frame)
    {
        ecore_main_loop_iterate();
        ecore_evas_manual_render(ecore_evas_ecore_evas_get(evas_object_evas_get(veskar::FirstWindow())));
    }
    return Now() - start;
}

VESKAR_APP::WindowManager* Start()
{
    Require(StartToolkit(), "the toolkit starts");
    elm_theme_overlay_add(nullptr, VESKAR_THEME_FILE);
    auto* manager = new VESKAR_APP::WindowManager([] {}, [] {});
    evas_object_resize(veskar::FirstWindow(), 960, 540);
    return manager;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static auto* manager = Start();
    Input input(data, size);
    const int kind = input.Byte();
    Texts texts;
    while (!input.Empty() || texts.size() < 7)
    {
        texts.push_back(Valid(input.Text()));
        if (std::count(texts.back().begin(), texts.back().end(), '\t') > MOST_TABS)
        {
            return 0;
        }
    }
    // What is measured again has its fonts loaded, and is no moment of a busy machine.
    double seconds = BOUND;
    for (int attempt = 0; attempt < 3 && seconds >= BOUND; ++attempt)
    {
        seconds = Draw(*manager, kind, texts);
    }
    Require(seconds < BOUND, "a screen is drawn within 200 ms: " + std::to_string(seconds));
    return 0;
}
