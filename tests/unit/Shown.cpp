#include "Shown.h"

#include <algorithm>
#include <cstdio>

#include <Ecore_Evas.h>

ShownTest::ShownTest()
    : images{WritePicture("red", {"\377\0\0", 3}), WritePicture("green", {"\0\377\0", 3}),
             WritePicture("blue", {"\0\0\377", 3})}
{
    elm_theme_overlay_add(nullptr, VESKAR_THEME_FILE);
    manager = std::make_unique<VESKAR_APP::WindowManager>([] {}, [] {});
    canvas = evas_object_evas_get(tv.window);
    evas_object_resize(tv.window, WIDTH, HEIGHT);
    TakeKeyboard();
    Settle();
    m_drawing = ecore_idle_enterer_add(s_Draw, this);
}

ShownTest::~ShownTest()
{
    ecore_idle_enterer_del(m_drawing);
    manager.reset();
    std::for_each(images.begin(), images.end(), [](const std::string& path) { std::remove(path.c_str()); });
    elm_theme_overlay_del(nullptr, VESKAR_THEME_FILE);
}

/** Draws whenever the toolkit could, as if the compositor had just requested a picture. */
Eina_Bool ShownTest::s_Draw(void* data)
{
    auto* test = static_cast<ShownTest*>(data);
    Ecore_Evas* output = ecore_evas_ecore_evas_get(test->canvas);
    ecore_evas_manual_render(output);
    const auto* pixels = static_cast<const unsigned*>(ecore_evas_buffer_pixels_get(output));
    Frame frame;
    int width = 0;
    int height = 0;
    ecore_evas_geometry_get(output, nullptr, nullptr, &width, &height);
    for (int row = 0; row < height; ++row, pixels += width)
    {
        frame.emplace_back(pixels, pixels + width);
    }
    if (test->last != frame)
    {
        test->last = frame;
        test->frames.push_back(std::move(frame));
        test->times.push_back(ecore_time_get());
        test->m_still = 0;
    }
    return ECORE_CALLBACK_RENEW;
}

void ShownTest::TakeKeyboard()
{
    ecore_evas_focus_set(ecore_evas_ecore_evas_get(canvas), 0);
    ecore_evas_focus_set(ecore_evas_ecore_evas_get(canvas), 1);
}

void ShownTest::Watch()
{
    frames.clear();
    times.clear();
    m_still = 0;
    ecore_timer_add(0.04, s_IsStill, this);
    ecore_main_loop_begin();
}

void ShownTest::WatchWithKeyboard()
{
    TakeKeyboard();
    Watch();
}

void ShownTest::ShowEveryKind(const std::function<void()>& look)
{
    const auto expect = [this, &look](const char* screen, bool isShown)
    {
        SCOPED_TRACE(screen);
        EXPECT_TRUE(isShown);
        WatchWithKeyboard();
        look();
    };
    const Texts rows(25, "row");
    const std::string two =
        "A text that takes more than one line of the sheet, so that it is broken into two of them. ";
    std::string page;
    while (page.size() < 2000)
    {
        page += two;
    }
    VESKAR_APP::WindowManager& show = *manager;
    expect("notice", show.ShowMessage(1, 255, "", "", "", "One line", {}, false));
    expect("long lines", show.ShowMessage(1, 255, two, two, two + two, two, {"OK", "Cancel"}, false));
    expect("text page", show.ShowMessage(1, 255, "T", "S", "B", page, {"One", two, "Three"}, false));
    expect("cells", show.ShowList(1, 255, "T", "S", "B", {"a\tb\tc", "1\t2\t3", "4\t5\t6"}, "LCR", true, {"OK"}, true));
    expect("few rows", show.ShowList(1, 255, "T", "", "", {"a", "b"}, "L", false, {}, true));
    expect("rows to mark", show.ShowMultipleList(1, 255, "T", "S", "B", rows, "L", false, {"OK", "Cancel"}, true));
    expect("image list",
           show.ShowMultipleImageList(1, 255, "T", "S", "B", rows, "L", true, {"OK"}, images, 640, 360, true));
    expect("image", show.ShowImage(1, 255, "T", "S", "B", images[0], 3000, 400, {"OK"}, false));
    expect("progress", show.ShowProgress(1, 255, "T", "S", "Stop", 42));
    expect("PIN", show.ShowPinManager(1, 255, "T", "S", "B", 4, ""));
}

/** Counts calls and not time: a busy machine draws late, but it does draw between two of these calls. */
Eina_Bool ShownTest::s_IsStill(void* data)
{
    constexpr int STILL = 4;
    if (++static_cast<ShownTest*>(data)->m_still < STILL)
    {
        return ECORE_CALLBACK_RENEW;
    }
    ecore_main_loop_quit();
    return ECORE_CALLBACK_CANCEL;
}

void ShownTest::Key(const std::string& key)
{
    evas_event_feed_key_down(canvas, key.c_str(), key.c_str(), "", "", 0, nullptr);
    evas_event_feed_key_up(canvas, key.c_str(), key.c_str(), "", "", 0, nullptr);
}

void ShownTest::Keys(const Texts& keys)
{
    std::for_each(keys.begin(), keys.end(), [this](const std::string& key) { Key(key); });
}
