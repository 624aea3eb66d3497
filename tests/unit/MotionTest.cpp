// Every picture that a viewer sees while a screen comes and while he moves in it, in the TV's own theme.

#include "Screen.h"
#include "WindowManager.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

#include <Ecore_Evas.h>
#include <unistd.h>

namespace
{

using VESKAR_APP::WindowManager;

constexpr int WIDTH = 960;
constexpr int HEIGHT = 540;
constexpr int SLIDE = 24;

using Row = std::vector<unsigned>;
using Frame = std::vector<Row>;

/** The same a little lower, as a sheet at the bottom is while it comes in: above it is nothing but the dimmed
 * programme. */
Frame Lowered(const Frame& frame, int by)
{
    Frame lowered(by, frame.front());
    lowered.insert(lowered.end(), frame.begin(), frame.end() - by);
    return lowered;
}

/**
 * By how much it is lower than at the end, a pixel too high counting as none: the toolkit rounds one too far at times.
 * -1: it differs otherwise.
 */
int Offset(const Frame& frame, const Frame& end)
{
    for (int offset = 0; offset <= SLIDE; ++offset)
    {
        if (frame == Lowered(end, offset))
        {
            return offset;
        }
    }
    return Lowered(frame, 1) == end ? 0 : -1;
}

struct MotionTest : TvTest
{
    std::unique_ptr<WindowManager> manager;
    Evas* canvas;
    Ecore_Idle_Enterer* drawing;
    Frame last;
    std::vector<Frame> frames; // each differs from the one before
    std::vector<double> times;
    int still = 0; // calls without a new frame
    const Texts images{Image("red", "\377\0\0"), Image("green", "\0\377\0"), Image("blue", "\0\0\377")};

    MotionTest()
    {
        elm_theme_overlay_add(nullptr, VESKAR_THEME_FILE);
        manager = std::make_unique<WindowManager>([] {}, [] {});
        canvas = evas_object_evas_get(tv.window);
        evas_object_resize(tv.window, WIDTH, HEIGHT);
        TakeKeyboard();
        Settle();
        drawing = ecore_idle_enterer_add(Draw, this);
    }
    ~MotionTest() override
    {
        ecore_idle_enterer_del(drawing);
        manager.reset();
        std::for_each(images.begin(), images.end(), [](const std::string& path) { std::remove(path.c_str()); });
        elm_theme_overlay_del(nullptr, VESKAR_THEME_FILE);
    }

    static std::string Image(const std::string& name, const char* colour)
    {
        std::string path = testing::TempDir() + name + std::to_string(getpid()) + ".ppm";
        std::ofstream file(path);
        file << "P6 4 3 255\n";
        for (int pixel = 0; pixel < 12; ++pixel)
        {
            file << std::string(colour, 3);
        }
        return path;
    }
    /** Draws whenever the toolkit could, as it does for a compositor that has just asked for a picture. */
    static Eina_Bool Draw(void* data)
    {
        auto* test = static_cast<MotionTest*>(data);
        Ecore_Evas* output = ecore_evas_ecore_evas_get(test->canvas);
        ecore_evas_manual_render(output);
        const auto* pixels = static_cast<const unsigned*>(ecore_evas_buffer_pixels_get(output));
        Frame frame;
        for (int row = 0; row < HEIGHT; ++row, pixels += WIDTH)
        {
            frame.emplace_back(pixels, pixels + WIDTH);
        }
        if (test->last != frame)
        {
            test->last = frame;
            test->frames.push_back(std::move(frame));
            test->times.push_back(ecore_time_get());
            test->still = 0;
        }
        return ECORE_CALLBACK_RENEW;
    }

    /** As a window does that a screen has shown. */
    void TakeKeyboard()
    {
        ecore_evas_focus_set(ecore_evas_ecore_evas_get(canvas), 0);
        ecore_evas_focus_set(ecore_evas_ecore_evas_get(canvas), 1);
    }
    /** Collects the frames from now on until nothing moves any more. */
    void Watch()
    {
        frames.clear();
        times.clear();
        still = 0;
        ecore_timer_add(0.04, IsStill, this);
        ecore_main_loop_begin();
    }
    /** Not by the clock alone: a busy machine draws late, but between two of these calls it draws. */
    static Eina_Bool IsStill(void* data)
    {
        constexpr int REST = 4;
        if (++static_cast<MotionTest*>(data)->still < REST)
        {
            return ECORE_CALLBACK_RENEW;
        }
        ecore_main_loop_quit();
        return ECORE_CALLBACK_CANCEL;
    }
    void Key(const char* key)
    {
        evas_event_feed_key_down(canvas, key, key, "", "", 0, nullptr);
        evas_event_feed_key_up(canvas, key, key, "", "", 0, nullptr);
    }
};

TEST_F(MotionTest, AScreenComesWholeAndOnlySlides)
{
    const Texts rows(20, "row");
    const Texts buttons{"OK", "Cancel", "A label that takes more than one line of its button"};
    const std::string wrapped =
        "A text that takes more than one line of the sheet, so that it is broken into several of them. ";
    std::string page;
    while (page.size() < 2000)
    {
        page += wrapped;
    }
    double shortest = 1;
    int farthest = 0;
    const auto expectSlide = [&](const char* name, bool shown)
    {
        SCOPED_TRACE(name);
        EXPECT_TRUE(shown);
        TakeKeyboard();
        Watch();
        std::vector<int> offsets;
        for (const Frame& frame : frames)
        {
            offsets.push_back(Offset(frame, last));
        }
        EXPECT_TRUE(std::is_sorted(offsets.rbegin(), offsets.rend())) << testing::PrintToString(offsets);
        farthest = std::max(farthest, offsets.front());
        shortest = std::min(shortest, times.back() - times.front());
    };
    WindowManager& show = *manager;
    expectSlide("message", show.ShowMessage(1, 255, "T", "S", "B", "Text", {"OK"}, false));
    expectSlide("wrapped", show.ShowMessage(1, 255, wrapped, wrapped, wrapped, wrapped, buttons, false));
    expectSlide("text page", show.ShowMessage(1, 255, "T", "S", "B", page, {"OK"}, false));
    expectSlide("list", show.ShowList(1, 255, "T", "S", "B", rows, "LR", true, {}, true));
    expectSlide("few rows", show.ShowList(1, 255, "T", "", "", {"a", "b"}, "L", false, {}, true));
    expectSlide("rows to mark", show.ShowMultipleList(1, 255, "T", "", "", rows, "L", false, buttons, true));
    expectSlide("image list",
                show.ShowMultipleImageList(1, 255, "T", "S", "B", images, "L", false, {}, images, 400, 300, true));
    expectSlide("image", show.ShowImage(1, 255, "T", "S", "B", images[0], 400, 300, {"OK"}, false));
    expectSlide("progress", show.ShowProgress(1, 255, "T", "S", "Stop", 42));
    expectSlide("PIN", show.ShowPinManager(1, 255, "T", "S", "B", 4, ""));
    // A busy machine makes some of the slides longer, or begins late.
    EXPECT_LE(shortest, 0.2);
    EXPECT_GT(farthest, 0);
}

TEST_F(MotionTest, AnEventChangesThePictureOnce)
{
    const Texts rows(20, "row");
    const auto expectOneFrame = [this](const Texts& keys)
    {
        TakeKeyboard();
        Watch();
        for (const std::string& key : keys)
        {
            Key(key.c_str());
            Watch();
            EXPECT_EQ(frames.size(), 1U) << key;
        }
    };
    WindowManager& show = *manager;
    show.ShowMultipleImageList(1, 255, "T", "S", "B", images, "L", false, {}, images, 400, 300, true);
    expectOneFrame({"Down", "Down", "Up", "Down", "Up", "Up"});
    show.ShowList(1, 255, "T", "S", "B", rows, "L", false, {}, true);
    expectOneFrame(Texts(14, "Down"));
    show.ShowMultipleList(1, 255, "T", "S", "B", rows, "L", false, {}, true);
    expectOneFrame({"Return", "Down", "Return", "Return"});
    show.ShowMessage(1, 255, "T", "S", "B", "text", {"OK", "Cancel"}, false);
    expectOneFrame({"Right", "Left"});
    show.ShowProgress(1, 255, "T", "S", "Stop", 42);
    Watch();
    show.ShowProgress(1, 255, "Another title", "Another line", "End", 43);
    Watch();
    EXPECT_EQ(frames.size(), 1U);
}

TEST_F(MotionTest, ARowIsLitBeforeTheWindowHasTheKeyboard)
{
    // It has it from its first picture on, and is told after that.
    Ecore_Evas* output = ecore_evas_ecore_evas_get(canvas);
    manager->ShowList(1, 255, "T", "S", "B", {"a", "b"}, "L", false, {}, true);
    ecore_evas_focus_set(output, 0);
    Watch();
    ecore_evas_focus_set(output, 1);
    Watch();
    EXPECT_TRUE(frames.empty());
}

} // namespace
