// Every picture that a viewer sees while a screen appears and while he moves in it.

#include "Shown.h"

#include <algorithm>

#include <Ecore_Evas.h>

namespace
{

using VESKAR_APP::WindowManager;

constexpr int SLIDE = 24;

/** How opaque the scrim is, above the screen. */
unsigned Scrim(const Frame& frame)
{
    return frame.front().front() >> 24;
}

/** Where the frame is brighter than grounds and shadows. */
Frame Ink(Frame frame)
{
    constexpr unsigned BRIGHT = 0x60;
    for (Row& row : frame)
    {
        for (unsigned& pixel : row)
        {
            pixel = std::max({pixel & 0xff, pixel >> 8 & 0xff, pixel >> 16 & 0xff}) > BRIGHT ? 1 : 0;
        }
    }
    return frame;
}

/** The frame moved down, as a sheet is while it slides in. */
Frame Lowered(const Frame& frame, int by)
{
    Frame lowered(by, frame.front());
    lowered.insert(lowered.end(), frame.begin(), frame.end() - by);
    return lowered;
}

/**
 * By how many pixels `frame` is lower than `end`; -1 when it differs in another way. One pixel higher counts as 0,
 * because the toolkit's rounding may cause that.
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

using MotionTest = ShownTest;

TEST_F(MotionTest, AScreenComesWholeAndOnlySlides)
{
    double shortest = 1;
    int farthest = 0;
    int brought = 0; // screens that brought the scrim
    const auto expectSlide = [&]
    {
        std::vector<int> offsets;
        std::vector<unsigned> scrims;
        for (const Frame& frame : frames)
        {
            offsets.push_back(Offset(Ink(frame), Ink(last)));
            scrims.push_back(Scrim(frame));
        }
        EXPECT_TRUE(std::is_sorted(offsets.rbegin(), offsets.rend())) << testing::PrintToString(offsets);
        EXPECT_TRUE(std::is_sorted(scrims.begin(), scrims.end())) << testing::PrintToString(scrims);
        brought += scrims.front() < scrims.back() ? 1 : 0;
        farthest = std::max(farthest, offsets.front());
        shortest = std::min(shortest, times.back() - times.front());
    };
    ShowEveryKind(expectSlide);
    // On a busy machine some slides take longer or begin late, that of the first screen and its scrim among them.
    EXPECT_LE(brought, 1);
    EXPECT_LE(shortest, 0.22);
    EXPECT_GT(farthest, 0);
}

TEST_F(MotionTest, AnEventChangesThePictureOnce)
{
    const Texts rows(20, "row");
    const auto expectOneFrame = [this](const Texts& keys)
    {
        WatchWithKeyboard();
        for (const std::string& key : keys)
        {
            Key(key);
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
    for (const unsigned char percent : {43, 44})
    {
        show.ShowProgress(1, 255, "Another title", "Another line", "End", percent);
        Watch();
        EXPECT_EQ(frames.size(), 1U) << +percent;
    }
}

TEST_F(MotionTest, ARowIsLitBeforeTheWindowHasTheKeyboard)
{
    // A window has the keyboard from its first picture on, and gets the event only after that.
    Ecore_Evas* output = ecore_evas_ecore_evas_get(canvas);
    manager->ShowList(1, 255, "T", "S", "B", {"a", "b"}, "L", false, {}, true);
    ecore_evas_focus_set(output, 0);
    Watch();
    ecore_evas_focus_set(output, 1);
    Watch();
    EXPECT_TRUE(frames.empty());
}

} // namespace
