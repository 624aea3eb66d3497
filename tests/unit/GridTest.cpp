// Every kind of screen stands on one grid and in one rhythm, at full size: read from the toolkit and from the picture.

#include "Shown.h"

#include <algorithm>
#include <set>

namespace
{

using VESKAR_APP::WindowManager;

/** A theme, and whether writing runs from right to left. */
struct Mode
{
    const char* name;
    const char* theme;
    bool mirrored;
    int pitch;
};

void PrintTo(const Mode& mode, std::ostream* out)
{
    *out << mode.name;
}

struct Box
{
    int left;
    int top;
    int right;
    int bottom;
};

/** From left to right, in a user interface that is not mirrored. */
using Span = std::pair<int, int>;

constexpr int SCREEN_W = 1920;
constexpr int SCREEN_H = 1080;
constexpr double FULL_SCALE = 2.0;
const Span GRID{351, 1569};
const Span TEXTS{391, 1529};
const Span BAR{1600, 1606};

struct GridTest : ShownTest, testing::WithParamInterface<Mode>
{
    GridTest()
    {
        elm_config_scale_set(FULL_SCALE);
        elm_config_mirrored_set(GetParam().mirrored);
        theme.replace(theme.rfind("veskar-theme"), std::string::npos, GetParam().theme);
        elm_theme_overlay_add(nullptr, theme.c_str());
        evas_object_resize(tv.window, SCREEN_W, SCREEN_H);
        Settle();
    }
    ~GridTest() override
    {
        elm_theme_overlay_del(nullptr, theme.c_str());
        elm_config_mirrored_set(EINA_FALSE);
        elm_config_scale_set(1.0);
    }

    std::vector<Evas_Object*> Find(const std::string& type) { return WidgetsOnScreen(tv.window, type); }

    static Box Place(const Evas_Object* object)
    {
        Box box{};
        evas_object_geometry_get(object, &box.left, &box.top, &box.right, &box.bottom);
        return {box.left, box.top, box.left + box.right, box.top + box.bottom};
    }
    /** A part of a layout, where it is on the screen. */
    static Box Place(const Evas_Object* edje, const char* part)
    {
        const Box whole = Place(edje);
        Box box{};
        edje_object_part_geometry_get(edje, part, &box.left, &box.top, &box.right, &box.bottom);
        return {whole.left + box.left, whole.top + box.top, whole.left + box.left + box.right,
                whole.top + box.top + box.bottom};
    }
    static Span Across(const Box& box)
    {
        return GetParam().mirrored ? Span{SCREEN_W - box.right, SCREEN_W - box.left} : Span{box.left, box.right};
    }
    /** The layout that has this part. */
    Evas_Object* LayoutWith(const char* part)
    {
        for (Evas_Object* layout : Find("elm_layout"))
        {
            if (edje_object_part_exists(elm_layout_edje_get(layout), part))
            {
                return elm_layout_edje_get(layout);
            }
        }
        return nullptr;
    }

    void Look()
    {
        TakeKeyboard();
        Watch();
    }
    void ExpectOnGrid(const char* screen)
    {
        SCOPED_TRACE(screen);
        Look();
        ExpectSheet();
        ExpectButtons();
        ExpectTexts();
        ExpectRows();
    }
    void ExpectSheet()
    {
        const Box sheet = Place(LayoutWith("panel"), "panel");
        EXPECT_EQ(Across(sheet), Span(192, 1728));
        EXPECT_EQ(sheet.bottom, SCREEN_H);
        EXPECT_GE(sheet.bottom - sheet.top, 320);
        EXPECT_LE(sheet.bottom - sheet.top, 1040);
        const auto isDimmed = [](const Row& row)
        {
            return std::all_of(row.begin(), row.end(), [](unsigned pixel) { return pixel >> 24 > 0x40; });
        };
        EXPECT_TRUE(std::all_of(last.begin(), last.end(), isDimmed));
    }
    void ExpectButtons()
    {
        const int middle = GetParam().mirrored ? 771 : 770; // both in the middle of the grid, but for half a pixel
        const std::vector<Span> places[] = {
            {}, {{740, 1180}}, {{351, 940}, {980, 1569}}, {{351, 730}, {middle, middle + 379}, {1190, 1569}}};
        std::vector<Span> buttons;
        for (Evas_Object* button : Find("elm_button"))
        {
            buttons.push_back(Across(Place(button)));
            EXPECT_EQ(Place(button).bottom, SCREEN_H - 68);
        }
        std::sort(buttons.begin(), buttons.end());
        EXPECT_EQ(buttons, places[buttons.size()]);
    }
    void ExpectTexts()
    {
        for (Evas_Object* label : Find("elm_label"))
        {
            const Evas_Object* edje = elm_layout_edje_get(label);
            if (edje_object_part_exists(edje, "measure"))
            {
                EXPECT_EQ(Across(Place(edje, "text")), TEXTS);
            }
        }
        for (Evas_Object* page : Find("elm_scroller"))
        {
            EXPECT_EQ(Across(Place(elm_layout_edje_get(page), "elm.swallow.content")), TEXTS);
            EXPECT_EQ(Across(Place(elm_layout_edje_get(page), "track")), BAR);
        }
    }
    /** Whole rows at one pitch, as wide as the grid; those beside a picture end before it and begin at its height. */
    void ExpectRows()
    {
        for (Evas_Object* list : Find("elm_genlist"))
        {
            const int pitch = GetParam().pitch;
            const Box view = Place(elm_layout_edje_get(list), "elm.swallow.content");
            EXPECT_EQ((view.bottom - view.top) % pitch, 0);
            EXPECT_GE((view.bottom - view.top) / pitch, 2);
            Span across = GRID;
            if (const std::vector<Evas_Object*> pictures = Find("elm_image"); !pictures.empty())
            {
                const Span image = Across(Place(pictures.front()));
                EXPECT_EQ(image.second - image.first, 640);
                EXPECT_TRUE(image.second == GRID.second || image.second == 1600);
                EXPECT_EQ(Place(pictures.front()).top, view.top + 4);
                across = {SCREEN_W - image.second, image.first - 20};
            }
            else
            {
                EXPECT_EQ(Across(Place(elm_layout_edje_get(list), "track")), BAR);
            }
            std::set<int> tops;
            for (const Evas_Object* row : Widgets(list, "edje"))
            {
                const Box ground = Place(row, "ground");
                if (!evas_object_visible_get(row) || !edje_object_part_exists(row, "line") || ground.top < view.top ||
                    ground.top >= view.bottom)
                {
                    continue;
                }
                EXPECT_EQ(Across(ground), across);
                EXPECT_EQ(ground.bottom - ground.top, pitch - 8);
                EXPECT_EQ((ground.top - view.top) % pitch, 4);
                tops.insert(ground.top);
            }
            EXPECT_GE(tops.size(), 2U);
        }
    }
    /** The rows of pixels with text in them, down to the ring of the button: the first and the one after the last. */
    std::vector<Span> Lines(int button)
    {
        constexpr int RING = 8;
        std::vector<Span> lines;
        for (int y = 0; y < button - RING; ++y)
        {
            const bool hasText = std::any_of(last[y].begin() + TEXTS.first, last[y].begin() + TEXTS.second,
                                             [](unsigned pixel) { return (pixel >> 16 & 0xff) > 0x70; });
            if (hasText && (lines.empty() || lines.back().second != y))
            {
                lines.emplace_back(y, y);
            }
            if (hasText)
            {
                ++lines.back().second;
            }
        }
        return lines;
    }

    std::string theme = VESKAR_THEME_FILE;
};

TEST_P(GridTest, EveryKindOfScreenStandsOnIt)
{
    const Texts rows(25, "row");
    const std::string sentence =
        "A text that takes more than one line of the sheet, so that it is broken into several. ";
    std::string page;
    while (page.size() < 2000)
    {
        page += sentence;
    }
    WindowManager& show = *manager;
    show.ShowMessage(1, 255, "", "", "", "One line", {}, false);
    ExpectOnGrid("a notice");
    show.ShowMessage(1, 255, "T", "S", "B", sentence + sentence, {"OK"}, false);
    ExpectOnGrid("a message");
    show.ShowMessage(1, 255, sentence, sentence + sentence, sentence + sentence, "One line", {"OK", "Cancel"}, false);
    ExpectOnGrid("long lines");
    show.ShowMessage(1, 255, "T", "S", "B", page, {"One", sentence, "Three"}, false);
    ExpectOnGrid("a text in pages");
    show.ShowList(1, 255, "T", "S", "B", {"a\tb\tc", "1\t2\t3", "4\t5\t6"}, "LCR", true, {"OK"}, true);
    ExpectOnGrid("columns with a header");
    show.ShowList(1, 255, "T", "S", "B", rows, "L", false, {"OK"}, true);
    ExpectOnGrid("many rows");
    show.ShowMultipleList(1, 255, "T", "S", "B", rows, "L", false, {"OK", "Cancel"}, true);
    ExpectOnGrid("rows to mark");
    for (const bool header : {false, true})
    {
        show.ShowMultipleImageList(1, 255, "T", "S", "B", rows, "L", header, {"OK"}, images, 640, 360, true);
        ExpectOnGrid("rows beside a picture");
    }
    show.ShowImage(1, 255, "T", "S", "B", images[0], 3000, 400, {"OK"}, false);
    ExpectOnGrid("a picture");
    show.ShowProgress(1, 255, "T", "S", "Stop", 42);
    ExpectOnGrid("progress");
    show.ShowPinManager(1, 255, "T", "S", "B", 4, "");
    ExpectOnGrid("a PIN");
}

TEST_P(GridTest, ThePanelAtTheSideHasItsOwn)
{
    const char* panel = "Delete Kavro Operator Profile";
    const auto expectPanel = [this](const char* screen, const Span& sheet)
    {
        SCOPED_TRACE(screen);
        Look();
        const Box place = Place(LayoutWith("panel"), "panel");
        EXPECT_EQ(Across(place), sheet);
        EXPECT_EQ(Span(place.top, place.bottom), Span(40, SCREEN_H - 40));
        for (Evas_Object* button : Find("elm_button"))
        {
            EXPECT_EQ(Across(Place(button)), Span(sheet.first + 64, sheet.second - 64));
        }
        for (Evas_Object* label : Find("elm_label"))
        {
            const Evas_Object* edje = elm_layout_edje_get(label);
            EXPECT_TRUE(!edje_object_part_exists(edje, "measure") ||
                        Across(Place(edje, "text")).first == sheet.first + 104);
        }
    };
    manager->ShowMessage(1, 255, panel, "S", "B", "Text", {"OK", "Cancel"}, false);
    expectPanel("a question", {952, 1880});
    manager->ShowImage(1, 255, panel, "S", "B", images[0], 3000, 400, {"OK"}, false);
    expectPanel("a picture does not widen it", {952, 1880});
    manager->ShowList(1, 255, panel, "S", "B", {"a\tb", "c\td"}, "LR", true, {"OK"}, true);
    expectPanel("a list of cells", {534, 1880});
}

TEST_P(GridTest, TextsFollowEachOtherInOneRhythm)
{
    constexpr int EDGE = 2;
    constexpr double ROUNDING = 1;
    manager->ShowMessage(1, 255, "Hp", "Hp", "Hp", "Hp", {"OK"}, false);
    Look();
    const int button = Place(Find("elm_button").front()).top;
    int end = Place(LayoutWith("panel"), "panel").top + EDGE;
    std::vector<int> gaps;
    for (const auto& [top, bottom] : Lines(button))
    {
        gaps.push_back(top - end);
        end = bottom;
    }
    gaps.push_back(button - end);
    EXPECT_THAT(gaps, testing::Pointwise(testing::DoubleNear(ROUNDING), {56, 16, 40, 40, 40}));
}

INSTANTIATE_TEST_SUITE_P(Modes, GridTest,
                         testing::Values(Mode{"Normal", "veskar-theme.edj", false, 80},
                                         Mode{"Enlarged", "veskar-theme-large.edj", false, 88},
                                         Mode{"RightToLeft", "veskar-theme.edj", true, 80}),
                         [](const auto& mode) { return std::string(mode.param.name); });

} // namespace
