// What the desk adds to its stock toolkit, tested with the screens that need it.

#include "Shown.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <sys/stat.h>
#include <unistd.h>

namespace
{

using testing::ElementsAre;

Eina_Rectangle BoxOf(const Evas_Object* object)
{
    Eina_Rectangle box{};
    evas_object_geometry_get(object, &box.x, &box.y, &box.w, &box.h);
    return box;
}

/**
 * Whether every pixel of `row` is in the other one, at most one pixel away, because a centred text may move by that.
 */
bool IsWithin(const Row& row, const Row& other)
{
    for (std::size_t x = 1; x + 1 < row.size(); ++x)
    {
        if (row[x] != other[x] && row[x] != other[x - 1] && row[x] != other[x + 1])
        {
            return false;
        }
    }
    return true;
}

bool Alike(const Frame& one, const Frame& other)
{
    const auto alike = [](const Row& a, const Row& b)
    {
        return IsWithin(a, b) && IsWithin(b, a);
    };
    return std::equal(one.begin(), one.end(), other.begin(), alike);
}

/** Whether only grounds are drawn between these columns: every row of pixels has one colour there. */
bool IsBlank(const Frame& frame, int from, int to)
{
    const auto isPlain = [from, to](const Row& row)
    {
        return std::all_of(row.begin() + from, row.begin() + to, [&](unsigned pixel) { return pixel == row[from]; });
    };
    return std::all_of(frame.begin(), frame.end(), isPlain);
}

/** The heights of the lines of text that begin at the left of the box, each between rows of pixels of one colour. */
std::vector<int> LineHeights(const Frame& frame, const Eina_Rectangle& box)
{
    std::vector<int> heights;
    bool inLine = false;
    for (int y = box.y; y < box.y + box.h; ++y)
    {
        const bool drawn = !IsBlank({frame[y]}, box.x, box.x + box.w / 3);
        if (drawn && !inLine)
        {
            heights.push_back(0);
        }
        inLine = drawn;
        if (drawn)
        {
            ++heights.back();
        }
    }
    return heights;
}

constexpr const char* LONG = "A text that takes more than one line of the sheet, so that it is broken into several of "
                             "them, and then some more of it, until there is no doubt about that.";

struct ToolkitTest : ShownTest
{
    /** The picture once nothing moves. */
    Frame Picture()
    {
        WatchWithKeyboard();
        return last;
    }
    Frame Progress(int uiId, const std::string& text, const std::string& button = "Stop")
    {
        EXPECT_TRUE(manager->ShowProgress(uiId, 255, "Title", text, button, 42));
        return Picture();
    }
    int PageHeight(const std::string& text)
    {
        manager->ShowMessage(1, 255, "T", "", "", text, {"OK"}, false);
        Picture();
        return BoxOf(Find("elm_scroller")).h;
    }
    Evas_Object* Find(const std::string& type, std::size_t index = 0)
    {
        return WidgetsOnScreen(tv.window, type).at(index);
    }
    void ExpectOnScreen(const std::string& type)
    {
        for (Evas_Object* widget : WidgetsOnScreen(tv.window, type))
        {
            const Eina_Rectangle box = BoxOf(widget);
            EXPECT_TRUE(box.x >= 0 && box.y >= 0 && box.x + box.w <= WIDTH && box.y + box.h <= HEIGHT) << type;
        }
    }
};

TEST_F(ToolkitTest, AnUpdatedProgressLooksAsIfItHadBegunSo)
{
    const Frame withText = Progress(1, "Text");
    const Frame withoutText = Progress(2, "");
    const Frame withLongText = Progress(3, LONG);
    EXPECT_TRUE(IsBlank(withLongText, 120, 155)); // texts are in the middle of the sheet
    EXPECT_FALSE(Alike(withText, withoutText));
    EXPECT_FALSE(Alike(withText, withLongText));
    const Frame withoutButton = Progress(4, "Text", "");
    // Each of these updates the screen that is shown.
    EXPECT_TRUE(Alike(Progress(4, "Text"), withText));
    EXPECT_TRUE(Alike(Progress(4, ""), withoutText));
    EXPECT_TRUE(Alike(Progress(4, "Text"), withText));
    EXPECT_TRUE(Alike(Progress(4, LONG), withLongText));
    EXPECT_TRUE(Alike(Progress(4, "Text"), withText));
    EXPECT_TRUE(Alike(Progress(4, LONG), withLongText));
    EXPECT_TRUE(Alike(Progress(4, "Text", ""), withoutButton));
}

TEST_F(ToolkitTest, ASheetUpdatedToThePanelsTitleKeepsTheLinesOfASheet)
{
    Progress(1, LONG);
    const int height = BoxOf(Find("elm_label")).h;
    manager->ShowProgress(1, 255, "Delete Kavro Operator Profile", LONG, "Stop", 42);
    Picture();
    EXPECT_EQ(BoxOf(Find("elm_label")).h, height);
}

TEST_F(ToolkitTest, ThePanelAtTheSideHoldsRowsOfCellsAndBreaksItsTextsToItsWidth)
{
    manager->ShowList(1, 255, "Delete Kavro Operator Profile", "", "", {"Name\tActive\tPrice", "a\tb\tc"}, "LCR", true,
                      {"OK"}, true);
    Picture();
    const Eina_Rectangle list = BoxOf(Find("elm_genlist"));
    const Eina_Rectangle header = BoxOf(elm_object_parent_widget_get(Find("elm_label", 1)));
    EXPECT_LE(list.y - (header.y + header.h), 20) << "the header is not directly above its rows";
    ExpectOnScreen("elm_label");
    for (Evas_Object* cell : Widgets(Find("elm_genlist"), "elm_label"))
    {
        EXPECT_GE(BoxOf(cell).x, list.x);
        EXPECT_LE(BoxOf(cell).x + BoxOf(cell).w, list.x + list.w);
    }
    EXPECT_EQ(Widgets(Find("elm_genlist"), "elm_label").size(), 3U);

    manager->ShowMessage(1, 255, "Delete Kavro Operator Profile", LONG, "", "Text", {"OK"}, false);
    EXPECT_THAT(tv.Log(DLOG_INFO), testing::Contains(testing::StartsWith("line num: 3 ")));
}

TEST_F(ToolkitTest, AScreenTooLargeForTheTvIsMadeToFit)
{
    manager->ShowImage(1, 255, "T", "S", "B", images[0], 3000, 2000, {"OK"}, false);
    Picture();
    ExpectOnScreen("elm_label");
    ExpectOnScreen("elm_button");
    ExpectOnScreen("elm_image");
    EXPECT_GT(BoxOf(Find("elm_image")).h, HEIGHT / 3);

    manager->ShowMultipleImageList(1, 255, "T", "S", "B", {"a", "b", "c"}, "L", false, {"OK"}, images, 600, 1500, true);
    Picture();
    Key("Down"); // the next picture has the same size
    Picture();
    ExpectOnScreen("elm_button");
    ExpectOnScreen("elm_image");
    EXPECT_GT(BoxOf(Find("elm_genlist")).h, 0);
}

TEST_F(ToolkitTest, OnlyARegularFileOfASensibleSizeIsAnImage)
{
    const std::string folder = testing::TempDir() + "images-" + std::to_string(getpid());
    std::filesystem::create_directory(folder);
    const std::string pipe = folder + "/pipe.png";
    mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR);
    const std::string link = folder + "/link.ppm";
    std::filesystem::create_symlink(images[0], link);
    const std::string vast = folder + "/vast.ppm";
    std::ofstream(vast) << "P6 20000 20000 255\n";

    Evas_Object* image = elm_image_add(tv.window);
    EXPECT_TRUE(elm_image_file_set(image, link.c_str(), nullptr));
    for (const std::string& path :
         {pipe, vast, folder, std::string("/dev/zero"), std::string("http://localhost:9/a.png")})
    {
        EXPECT_FALSE(elm_image_file_set(image, path.c_str(), nullptr)) << path;
        EXPECT_FALSE(elm_image_file_set(image, path.c_str(), nullptr)) << path << ", again";
        EXPECT_TRUE(elm_image_file_set(image, images[1].c_str(), nullptr));
    }
    std::filesystem::remove_all(folder);
}

TEST_F(ToolkitTest, DownFromAButtonNeverLeadsUpIntoTheList)
{
    for (const char* title :
         {"Title", "Delete Kavro Operator Profile"}) // buttons side by side, and one below the other
    {
        SCOPED_TRACE(title);
        manager->ShowList(1, 255, title, "", "", Texts(40, "row"), "L", false, {"A", "B"}, true);
        Picture();
        ASSERT_EQ(elm_object_focused_object_get(tv.window), Find("elm_button", 0));
        for (int step = 0; step < 3; ++step)
        {
            Key("Down");
            EXPECT_STREQ(evas_object_type_get(elm_object_focused_object_get(tv.window)), "elm_button");
        }
    }
    EXPECT_EQ(elm_object_focused_object_get(tv.window), Find("elm_button", 1));
    Keys({"Up", "Up"});
    EXPECT_EQ(elm_object_focused_object_get(tv.window), Find("elm_genlist"));
}

TEST_F(ToolkitTest, ALongTextIsAsHighAsItsLinesUpToAPageAndEveryWordIsInIt)
{
    const int twoLines = PageHeight(std::string(301, '.') + "\n2");
    const int fourLines = PageHeight(std::string(301, '.') + "\n2\n3\n4");
    const int page = PageHeight(std::string(301, '\n'));
    EXPECT_GT(fourLines, twoLines);
    EXPECT_LT(fourLines, page);
    EXPECT_EQ(page, 240);

    std::string sentence; // Thai has no blanks between its words
    while (sentence.size() < 400)
    {
        sentence += "\u0e20\u0e32\u0e29\u0e32\u0e44\u0e17\u0e22";
    }
    EXPECT_GT(PageHeight(sentence + sentence), PageHeight(sentence)) << "what is wider than a page is cut off";
    std::string tabs;
    while (tabs.size() < 320)
    {
        tabs += "a\t";
    }
    EXPECT_GT(PageHeight(tabs), PageHeight(std::string(320, 'a'))) << "a tab has no width";
}

TEST_F(ToolkitTest, APageHasWholeLinesOnlyAndLooksTheSameWhenItComesBack)
{
    std::string text;
    for (std::size_t line = 0; line < 100; ++line)
    {
        text += std::string(line / 3 + 1, 'H') + '\n';
    }
    manager->ShowMessage(1, 255, "T", "", "", text, {"OK"}, false);
    std::vector<Frame> pages;
    for (const char* key : {"Up", "Down", "Down"})
    {
        Key(key); // there is nothing above the first page
        pages.push_back(Picture());
        const std::vector<int> heights = LineHeights(last, BoxOf(Find("elm_scroller")));
        EXPECT_GT(heights.size(), 5U);
        EXPECT_THAT(heights, testing::Each(heights.front())) << "page " << pages.size();
        EXPECT_EQ(TextOf(Find("elm_scroller"), "veskar.text.page").rfind(std::to_string(pages.size()) + "/"), 0U);
    }
    EXPECT_TRUE(pages[0] != pages[1] && pages[1] != pages[2]);
    Keys({"Up", "Up"});
    EXPECT_TRUE(Picture() == pages[0]);
}

TEST_F(ToolkitTest, AListThatNobodyMovesIsNotDrawnAgain)
{
    manager->ShowList(1, 255, "T", "", "", {"a", "b"}, "L", false, {"OK"}, true);
    Picture();
    int drawn = 0;
    const auto count = [](void* number, Evas*, void*)
    {
        ++*static_cast<int*>(number);
    };
    evas_event_callback_add(canvas, EVAS_CALLBACK_RENDER_PRE, count, &drawn);
    LoopEnds(0.3);
    evas_event_callback_del_full(canvas, EVAS_CALLBACK_RENDER_PRE, count, &drawn);
    EXPECT_EQ(drawn, 0);
}

TEST_F(ToolkitTest, RowsBesideAnImageKeepTheirRoomInThePanel)
{
    manager->ShowMultipleImageList(1, 255, "Delete Kavro Operator Profile", "", "", {"a", "b", "c"}, "L", false, {"OK"},
                                   images, 640, 480, true);
    Picture();
    EXPECT_GE(BoxOf(Find("elm_genlist")).w, 200);
    ExpectOnScreen("elm_image");
}

TEST_F(ToolkitTest, AHiddenButtonStaysHiddenAndNoKeyLeadsThere)
{
    manager->ShowList(1, 255, "T", "", "", {"a", "b"}, "L", false, {"", "No"}, true);
    Picture();
    EXPECT_FALSE(evas_object_visible_get(Find("elm_button", 0)));
    Keys({"Down", "Down"});
    EXPECT_EQ(elm_object_focused_object_get(tv.window), Find("elm_button", 1));
}

TEST_F(ToolkitTest, NoButtonHasTheFocusWhileTheFirstOneIsHidden)
{
    manager->ShowMessage(1, 255, "T", "", "", "Text", {"", "No", "Later"}, false);
    Picture();
    Keys({"Return"});
    EXPECT_THAT(tv.Did("answer"), testing::IsEmpty()) << "a button has the focus";
    Keys({"Right", "Return"});
    EXPECT_THAT(tv.Did("answer"), ElementsAre("answer 1 255 0 2 0 \"\""));
}

TEST_F(ToolkitTest, RowsAreWalkedOneByOneAsFastAsKeysCome)
{
    manager->ShowMultipleList(7, 255, "T", "", "", Texts(20, "row"), "L", false, {"OK"}, true);
    Picture();
    Keys({"Up", "Up", "Return"}); // with so many rows the button has the focus, and the first row keeps it
    Keys(Texts(14, "Down"));
    Keys({"Return", "Up", "Return"});
    Keys(Texts(7, "Down"));
    Key("Return"); // on the first button
    EXPECT_THAT(tv.Did("answer"), ElementsAre("answer 7 255 0 0 0 \"11145\""));
}

TEST_F(ToolkitTest, ARowHigherThanItsListIsShown)
{
    manager->ShowList(1, 255, "T", "", "", {std::string(3000, 'n'), "b"}, "L", false, {}, true);
    const Frame whole = Picture();
    const Eina_Rectangle list = BoxOf(Find("elm_genlist"));
    EXPECT_FALSE(IsBlank({whole.begin() + list.y, whole.begin() + list.y + list.h}, list.x + 40, list.x + list.w / 2));
}

TEST_F(ToolkitTest, UpFromPastTheLastPictureIsAStepFromTheLastRow)
{
    manager->ShowMultipleImageList(7, 255, "T", "", "", {"head", "a", "b", "c"}, "L", true, {}, images, 40, 30, true);
    Picture();
    Keys({"Down", "Down", "Down", "Up", "Return"});
    EXPECT_THAT(tv.Did("answer"), ElementsAre("answer 7 255 0 0 2 \"\""));
}

} // namespace
