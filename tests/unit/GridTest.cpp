// Every kind of screen stands on one grid and in one rhythm, at full size: read from the toolkit and from the picture.

#include "Shown.h"

#include <algorithm>
#include <set>

namespace
{

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

/** From left to right in a user interface that is not mirrored, or from top to bottom. */
using Span = std::pair<int, int>;

struct Box
{
    Span across;
    Span down;
};

constexpr int SCREEN_W = 1920;
constexpr int SCREEN_H = 1080;
constexpr double FULL_SCALE = 2.0;
const Span GRID{351, 1569};
const Span TEXTS{391, 1529};
const Span BAR{1600, 1606};

int Length(const Span& span)
{
    return span.second - span.first;
}

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

    /** Where the object, or that part of it, is on the screen. */
    static Box Place(const Evas_Object* object, const char* part = nullptr)
    {
        Eina_Rectangle place{};
        Eina_Rectangle inside{};
        evas_object_geometry_get(object, &place.x, &place.y, &place.w, &place.h);
        if (part != nullptr)
        {
            edje_object_part_geometry_get(object, part, &inside.x, &inside.y, &inside.w, &inside.h);
            place = {place.x + inside.x, place.y + inside.y, inside.w, inside.h};
        }
        const int left = GetParam().mirrored ? SCREEN_W - place.x - place.w : place.x;
        return {{left, left + place.w}, {place.y, place.y + place.h}};
    }
    static std::vector<Box> Places(const char* type)
    {
        std::vector<Box> places;
        for (const Evas_Object* widget : WidgetsOnScreen(tv.window, type))
        {
            places.push_back(Place(widget));
        }
        return places;
    }
    /** The part in each widget of this type whose layout also has the other part. */
    static std::vector<Box> Parts(const char* type, const char* part, const char* other)
    {
        std::vector<Box> places;
        for (const Evas_Object* widget : WidgetsOnScreen(tv.window, type))
        {
            const Evas_Object* layout = elm_layout_edje_get(widget);
            if (edje_object_part_exists(layout, other))
            {
                places.push_back(Place(layout, part));
            }
        }
        return places;
    }
    /** Of each message and line. */
    static std::vector<Box> FirstLines()
    {
        std::vector<Box> lines;
        for (const Evas_Object* label : WidgetsOnScreen(tv.window, "elm_label"))
        {
            const Evas_Object* text = edje_object_part_object_get(elm_layout_edje_get(label), "text");
            const Box place = Place(text);
            int x = 0;
            int width = 0;
            evas_object_textblock_line_number_geometry_get(text, 0, &x, nullptr, &width, nullptr);
            const int left = GetParam().mirrored ? Length(place.across) - x - width : x;
            lines.push_back({{place.across.first + left, place.across.first + left + width}, place.down});
        }
        return lines;
    }
    static Box Sheet() { return Parts("elm_layout", "panel", "panel").at(0); }

    void ExpectOnGrid()
    {
        EXPECT_EQ(Sheet().across, Span(192, 1728));
        EXPECT_EQ(Sheet().down.second, SCREEN_H);
        EXPECT_TRUE(Length(Sheet().down) >= 320 && Length(Sheet().down) <= 1040);
        const auto isDimmed = [](const Row& row)
        {
            return std::all_of(row.begin(), row.end(), [](unsigned pixel) { return pixel >> 24 > 0x40; });
        };
        EXPECT_TRUE(std::all_of(last.begin(), last.end(), isDimmed));
        ExpectButtons();
        ExpectAcross(TEXTS, Parts("elm_label", "text", "measure"));
        ExpectAcross(TEXTS, Parts("elm_scroller", "elm.swallow.content", "elm.swallow.content"));
        ExpectAcross(BAR, Parts("elm_scroller", "track", "track"));
        ExpectAcross({840, 1080}, Parts("elm_progressbar", "track", "elm.cur.progressbar"));
        for (const Box& field : Parts("elm_layout", "ground", "dot"))
        {
            EXPECT_EQ(Length(field.across), 120);
            EXPECT_EQ((field.across.first - 672) % 152, 0);
        }
        for (Evas_Object* list : WidgetsOnScreen(tv.window, "elm_genlist"))
        {
            ExpectRows(list);
        }
    }
    static void ExpectAcross(const Span& expected, const std::vector<Box>& places)
    {
        EXPECT_THAT(places, testing::Each(testing::Field(&Box::across, expected)));
    }
    void ExpectButtons()
    {
        const int middle = GetParam().mirrored ? 771 : 770; // both in the middle of the grid, but for half a pixel
        const std::vector<Span> places[] = {
            {}, {{740, 1180}}, {{351, 940}, {980, 1569}}, {{351, 730}, {middle, middle + 379}, {1190, 1569}}};
        std::vector<Span> buttons;
        for (const Box& button : Places("elm_button"))
        {
            buttons.push_back(button.across);
            EXPECT_EQ(button.down.second, SCREEN_H - 68);
        }
        std::sort(buttons.begin(), buttons.end());
        EXPECT_EQ(buttons, places[buttons.size()]);
    }
    /**
     * Whole rows at one pitch, as wide as the grid; those beside a picture, and their bar, end before it, and begin at
     * its height.
     */
    void ExpectRows(Evas_Object* list)
    {
        const int pitch = GetParam().pitch;
        const Box view = Place(elm_layout_edje_get(list), "elm.swallow.content");
        EXPECT_EQ(Length(view.down) % pitch, 0);
        Span across = GRID;
        ExpectAcross(BAR, Places("elm_image").empty() ? Parts("elm_genlist", "track", "track") : std::vector<Box>());
        for (const Box& picture : Places("elm_image"))
        {
            EXPECT_EQ(Length(picture.across), 640);
            EXPECT_TRUE(picture.across.second == GRID.second || picture.across.second == 1600);
            EXPECT_EQ(picture.down.first, view.down.first + 4);
            across = {SCREEN_W - picture.across.second, picture.across.first - 20};
            const Evas_Object* layout = elm_layout_edje_get(list);
            if (edje_object_part_state_get(layout, "track", nullptr) == std::string("visible"))
            {
                EXPECT_EQ(Place(layout, "track").across, Span(across.second - 6, across.second));
                across.second -= 24;
            }
        }
        std::set<int> tops;
        for (const Evas_Object* row : Widgets(list, "edje"))
        {
            const Box ground = Place(row, "ground");
            const int top = ground.down.first - view.down.first;
            if (evas_object_visible_get(row) && edje_object_part_exists(row, "line") && top >= 0 &&
                top < Length(view.down))
            {
                EXPECT_EQ(ground.across, across);
                EXPECT_EQ(Length(ground.down), pitch - 8);
                EXPECT_EQ(top % pitch, 4);
                tops.insert(top);
            }
        }
        EXPECT_GE(tops.size(), 2U);
    }

    std::string theme = VESKAR_THEME_FILE;
};

TEST_P(GridTest, EveryKindOfScreenStandsOnIt)
{
    ShowEveryKind([this] { ExpectOnGrid(); });
}

TEST_P(GridTest, ThePanelAtTheSideHasItsOwn)
{
    const char* panel = "Delete Kavro Operator Profile";
    const auto expectPanel = [this](const char* screen, const Span& sheet)
    {
        SCOPED_TRACE(screen);
        WatchWithKeyboard();
        EXPECT_EQ(Sheet().across, sheet);
        EXPECT_EQ(Sheet().down, Span(40, SCREEN_H - 40));
        ExpectAcross({sheet.first + 64, sheet.second - 64}, Places("elm_button"));
        for (const Box& text : Parts("elm_label", "text", "measure"))
        {
            EXPECT_EQ(text.across.first, sheet.first + 104);
        }
    };
    manager->ShowMessage(1, 255, panel, "S", "B", "Text", {"OK", "Cancel"}, false);
    expectPanel("a question", {952, 1880});
    for (const Box& line : FirstLines())
    {
        EXPECT_NEAR(line.across.first, 952 + 104, 1) << "a line begins where the others do";
    }
    manager->ShowImage(1, 255, panel, "S", "B", images[0], 3000, 400, {"OK"}, false);
    expectPanel("a picture does not widen it", {952, 1880});
    manager->ShowList(1, 255, panel, "S", "B", {"a\tb", "c\td"}, "LR", true, {"OK"}, true);
    expectPanel("a list of cells", {534, 1880});
}

TEST_P(GridTest, ColumnsThatMeetStandApart)
{
    const bool mirrored = GetParam().mirrored;
    const auto gap = [this](const std::string& row, const char* format)
    {
        manager->ShowList(1, 255, "T", "", "", {row, row}, format, true, {}, true);
        WatchWithKeyboard();
        std::set<Span> rooms; // the same in the header and in the row
        for (const Box& text : Parts("elm_label", "room", "before"))
        {
            rooms.insert(text.across);
        }
        return std::next(rooms.begin())->first - rooms.begin()->second;
    };
    EXPECT_NEAR(gap("a\tb", mirrored ? "LR" : "RL"), 288, 1);
    EXPECT_NEAR(gap("a\tb", mirrored ? "RL" : "LR"), 64, 1);
    EXPECT_NEAR(gap("a\tb\tc\td\te\tf\tg\th", mirrored ? "LRLRLRLR" : "RLRLRLRL"), 36, 1);
    EXPECT_NEAR(gap("a\tb\tc\td\te\tf\tg\th", "LLLLLLLL"), 16, 1);
}

TEST_P(GridTest, AFewRowsAreAllShownAlsoWhereOneIsHigher)
{
    manager->ShowList(1, 255, "T", "", "", {"a\tb", "c\tsome words that take two lines of this narrow cell"}, "LLLLL",
                      false, {}, true);
    WatchWithKeyboard();
    const Evas_Object* list = elm_layout_edje_get(WidgetsOnScreen(tv.window, "elm_genlist").at(0));
    EXPECT_STREQ(edje_object_part_state_get(list, "track", nullptr), "default");
}

TEST_P(GridTest, TextsFollowEachOtherInOneRhythm)
{
    constexpr int EDGE = 2;
    constexpr int RING = 8;
    constexpr double ROUNDING = 1;
    manager->ShowMessage(1, 255, "Hp", "Hp", "Hp", "Hp", {"OK"}, false);
    WatchWithKeyboard();
    const auto isBright = [](unsigned pixel)
    {
        return (pixel >> 16 & 0xff) > 0x70;
    };
    const int button = Places("elm_button").at(0).down.first;
    int end = Sheet().down.first + EDGE; // of the text above
    std::vector<int> gaps;
    for (int y = 0; y < button - RING; ++y)
    {
        if (std::any_of(last[y].begin() + TEXTS.first, last[y].begin() + TEXTS.second, isBright))
        {
            gaps.push_back(y - end);
            end = y + 1;
        }
    }
    gaps.erase(std::remove(gaps.begin(), gaps.end(), 0), gaps.end()); // inside a text
    gaps.push_back(button - end);
    EXPECT_THAT(gaps, testing::Pointwise(testing::DoubleNear(ROUNDING), {56, 16, 40, 40, 40}));
}

INSTANTIATE_TEST_SUITE_P(Modes, GridTest,
                         testing::Values(Mode{"Normal", "veskar-theme.edj", false, 80},
                                         Mode{"Enlarged", "veskar-theme-large.edj", false, 88},
                                         Mode{"RightToLeft", "veskar-theme.edj", true, 80}),
                         [](const auto& mode) { return std::string(mode.param.name); });

} // namespace
