#include "ImageListPopup.h"
#include "ListWindow.h"
#include "MultipleListWindow.h"
#include "Screen.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* BODY = "elm.swallow.icon";
constexpr const char* HEADER = "elm.swallow.content";

template <class Display>
struct ListProbe : Probe<Display>
{
    using Probe<Display>::Probe;
    using Display::s_ContentGet;
    using Display::s_OnMenuItemClicked;
    Evas_Object* Widget() const { return this->m_list.Widget(); }
};

template <class Display>
struct ListScreenTest : ScreenTest
{
    using List = ListProbe<Display>;
    std::unique_ptr<List> list;

    template <typename... Images>
    void Show(const std::string& format, bool header, const Texts& entries, bool selectable = true,
              const Images&... images)
    {
        list.reset();
        tv.Forget();
        answers.clear();
        list = std::make_unique<List>(*this, selectable, window);
        EXPECT_TRUE(list->SetMenuInformation("T", "S", "B", format, header, entries, {"OK", "No"}, images...));
        ASSERT_TRUE(list->Create());
        ASSERT_TRUE(list->Show());
        list->SetFocusToList(true);
    }
    /** The header row, which is below the sub-title. */
    Evas_Object* Header() { return elm_object_parent_widget_get(Widgets(list->t_popup, "elm_label").at(1)); }
    std::vector<Elm_Object_Item*> Items()
    {
        std::vector<Elm_Object_Item*> items;
        for (auto* item = elm_genlist_first_item_get(list->Widget()); item; item = elm_genlist_item_next_get(item))
        {
            items.push_back(item);
        }
        return items;
    }
    /** Return on a row: the list handles the key first, then the screen gets it. */
    void PressRow(std::size_t row)
    {
        Focused(window);
        elm_object_item_focus_set(Items().at(row), EINA_TRUE);
        Settle();
        Press(list->Widget(), "Return");
    }

    /** The part of a row as the list shows it; the row is the data that the list's item carries. */
    Evas_Object* Row(std::size_t row, const char* part = BODY)
    {
        return List::s_ContentGet(elm_object_item_data_get(Items().at(row)), window, part);
    }
    std::string RowText(std::size_t row)
    {
        const Elm_Genlist_Item_Class* itemClass = elm_genlist_item_item_class_get(Items().at(row));
        char* text = itemClass->func.text_get(elm_object_item_data_get(Items().at(row)), list->Widget(), "elm.text");
        std::string copy(text);
        std::free(text);
        return copy;
    }
};

std::string Cell(const char* alignment, const std::string& text, const char* size = "13",
                 const char* colour = "#FFFFFF")
{
    return std::string("<color=") + colour + "><font=Sans:style=Regular font_size=" + size + "><align=" + alignment +
           '>' + text + "</align></font></color>";
}

std::string MinimumSize(Evas_Object* object)
{
    int width = 0;
    int height = 0;
    evas_object_size_hint_min_get(object, &width, &height);
    return std::to_string(width) + 'x' + std::to_string(height);
}

using ListWindowTest = ListScreenTest<VESKAR_APP::ListWindow>;
using MultipleListWindowTest = ListScreenTest<VESKAR_APP::MultipleListWindow>;

TEST_F(ListWindowTest, CellsAreAlignedByTheLettersOfTheirColumns)
{
    Show("RLC", false, {"a\tb\t<c>\td", "", "\t&\t"});
    EXPECT_THAT(LabelTexts(Row(0)),
                ElementsAre(Cell("right", "a"), Cell("left", "b"), Cell("center", "&lt;c&gt;"), Cell("left", "d")));
    EXPECT_THAT(LabelTexts(Row(1)), ElementsAre(Cell("right", "")));
    EXPECT_THAT(LabelTexts(Row(2)), ElementsAre(Cell("right", ""), Cell("left", "&amp;"), Cell("center", "")));
    EXPECT_EQ(Row(0, "elm.text"), nullptr);

    tv.numbers = {{"db/menu/system/accessibility/focuszoom", 1}, {"db/menu/system/accessibility/highcontrast", 1}};
    EXPECT_THAT(LabelTexts(Row(1)), ElementsAre(Cell("right", "", "16", "#7F7F7F")));
}

TEST_F(ListWindowTest, TheColumnsShareTheWidthBetweenOneAndEight)
{
    const std::pair<const char*, int> formats[] = {
        {"", 577}, {"L", 577}, {"LRC", 192}, {"LLLLLLLL", 72}, {"LLLLLLLLCRLL", 72}};
    for (const auto& [format, width] : formats)
    {
        Show(format, false, {"1\t2\t3\t4\t5\t6\t7\t8\t9\t10"});
        Evas_Object* row = Row(0);
        EXPECT_EQ(Widgets(row, "elm_label").size(), 10U);
        EXPECT_EQ(MinimumSize(row), std::to_string(10 * width) + "x18"); // however many columns there are
        for (Evas_Object* cell : Widgets(row, "elm_label"))
        {
            EXPECT_EQ(MinimumSize(cell), std::to_string(width) + "x18");
            EXPECT_EQ(elm_label_wrap_width_get(cell), width);
        }
    }
    EXPECT_EQ(LabelTexts(Row(0)).at(8), Cell("center", "9"));
}

TEST_F(ListWindowTest, AHeaderStandsAboveTheRowsAndIsNotOneOfThem)
{
    Show("RL", true, {"h1\th2", "a\t<b> & c"});
    EXPECT_EQ(Items().size(), 1U);
    EXPECT_THAT(LabelTexts(Row(0)), ElementsAre(Cell("right", "a"), Cell("left", "&lt;b&gt; &amp; c")));
    EXPECT_EQ(MinimumSize(Header()), "609x15");
    EXPECT_THAT(LabelTexts(Header()), ElementsAre("<color=#FFFFFF><font=Sans:style=Regular font_size=13><b>"
                                                  "<align=right>h1</align></b></font></color>",
                                                  testing::HasSubstr("<b><align=left>h2</align></b>")));
    EXPECT_THAT(tv.Did("say"), ElementsAre("say T, S, h1\th2, a\t<b> & c, , B, "));
    Show("", true, {"only"});
    EXPECT_THAT(Items(), IsEmpty());
    Show("", true, {});
    EXPECT_EQ(LabelTexts(list->t_popup).size(), 2U); // sub-title and bottom line
}

TEST_F(ListWindowTest, ASelectableListReportsEachPressOfARow)
{
    Show("", true, {"head", "a", "b", "c"});
    Elm_Scroller_Policy across;
    Elm_Scroller_Policy down;
    elm_scroller_policy_get(list->Widget(), &across, &down);
    EXPECT_EQ(std::pair(across, down), std::pair(ELM_SCROLLER_POLICY_OFF, ELM_SCROLLER_POLICY_ON));
    EXPECT_EQ(elm_genlist_mode_get(list->Widget()), ELM_LIST_SCROLL);
    PressRow(2);
    PressRow(2);
    PressRow(0);
    EXPECT_THAT(answers, ElementsAre("item 3", "key", "item 3", "key", "item 1", "key"));
    elm_genlist_item_selected_set(Items().at(0), EINA_FALSE);
    List::s_OnMenuItemClicked(list.get(), list->Widget(), nullptr);
    EXPECT_EQ(answers.back(), "item 255");

    Show("", false, {"a", "b"}, false);
    EXPECT_EQ(Focused(window), list->Widget());
    PressRow(1);
    Press(list->t_popup, "XF86Back");
    Click(list->t_buttons[0]);
    EXPECT_THAT(answers, ElementsAre("key", "back", "button 1"));
}

TEST_F(MultipleListWindowTest, TheFirstButtonReportsTheMarkedRowsByTheirDigits)
{
    Show("LR", false, Texts(13, "row"));
    EXPECT_TRUE(elm_genlist_homogeneous_get(list->Widget()));
    PressRow(2);
    PressRow(11);
    Click(list->t_buttons[0]);
    Click(list->t_buttons[1]);
    // Marking a row is no answer. The selection must be answered before the button is.
    EXPECT_THAT(answers, ElementsAre("key", "key", "items 123", "button 1", "button 2"));

    answers.clear();
    PressRow(11); // a second press removes the mark
    Click(list->t_buttons[0]);
    elm_genlist_item_selected_set(Items().at(2), EINA_FALSE);
    Click(list->t_buttons[0]);
    EXPECT_THAT(answers, ElementsAre("key", "items 3", "button 1", "button 1"));

    Show("", false, {"a"}, false);
    PressRow(0);
    Click(list->t_buttons[0]);
    EXPECT_THAT(answers, ElementsAre("key", "button 1"));
}

TEST_F(MultipleListWindowTest, CellsRunTogetherBesideACheckBoxAndTheHeaderIsOnlySkipped)
{
    Show("LR", true, {"head", "a\t<b>\tc"});
    EXPECT_EQ(Items().size(), 1U);
    EXPECT_EQ(LabelTexts(list->t_popup).size(), 2U); // no header
    EXPECT_EQ(RowText(0), "a&lt;b&gt;c");
    Evas_Object* check = Row(0);
    EXPECT_STREQ(evas_object_type_get(check), "elm_check");
    EXPECT_STREQ(elm_object_style_get(check), "C_Checkbox_White");
    EXPECT_FALSE(elm_object_focus_allow_get(check));
    EXPECT_EQ(Row(0, HEADER), nullptr);
}

struct ImageListPopupTest : ListScreenTest<VESKAR_APP::ImageListPopup>
{
    const std::string first = WritePicture("first", "abc");
    const std::string second = WritePicture("second", "abc");

    Evas_Object* Image()
    {
        const std::vector<Evas_Object*> images = Widgets(list->t_popup, "elm_image");
        return images.empty() ? nullptr : images.front();
    }
    std::string Picture()
    {
        const char* path = nullptr;
        if (Evas_Object* image = Image())
        {
            elm_image_file_get(image, &path, nullptr);
        }
        return path == nullptr ? "" : path;
    }
    /** The pictures on the screen after each of these keys, with the list focused. */
    Texts After(std::initializer_list<const char*> keys)
    {
        evas_object_smart_callback_call(list->Widget(), "focused", nullptr);
        Texts pictures;
        for (const char* key : keys)
        {
            Press(list->t_popup, key);
            pictures.push_back(Picture());
        }
        return pictures;
    }
};

TEST_F(ImageListPopupTest, ThePictureFollowsUpAndDownWithinTheRows)
{
    Show("", false, {"a", "b"}, true, Texts{first, second}, 400, 300);
    EXPECT_EQ(Picture(), first);
    EXPECT_EQ(MinimumSize(Image()), "200x150");
    EXPECT_THAT(After({"Up", "Down", "Down", "Return", "Up"}), ElementsAre(first, second, second, second, first));
    EXPECT_EQ(RowText(1), "b");
    Press(list->t_popup, "XF86Back");
    EXPECT_THAT(answers, IsEmpty()); // no key is handed on
    PressRow(1);
    EXPECT_THAT(answers, ElementsAre("item 2"));
}

TEST_F(ImageListPopupTest, AnIndexPastThePicturesLeavesTheLastOne)
{
    Show("", true, {"head", "a", "b"}, false, Texts{first, second}, 1280, 721);
    EXPECT_THAT(LabelTexts(Header()), ElementsAre(testing::HasSubstr("<b><align=left>head</align></b>")));
    EXPECT_EQ(MinimumSize(Header()), "640x15");
    EXPECT_THAT(After({"Down", "Down"}), ElementsAre(second, second)); // the header counts among the entries
    EXPECT_TRUE(evas_object_visible_get(Image()));
    EXPECT_EQ(MinimumSize(Image()), "320x180") << "a wide picture is not brought down, or not the second one";
}

TEST_F(ImageListPopupTest, UpFromTheButtonsShowsTheLastRowsPicture)
{
    for (const bool header : {false, true})
    {
        Texts rows(header ? 1 : 0, "head");
        rows.insert(rows.end(), {"a", "b", "c"});
        Show("", header, rows, true, Texts{first, first, second}, 4, 4);
        evas_object_smart_callback_call(list->Widget(), "unfocused", nullptr);
        Press(list->t_popup, "Right");
        EXPECT_THAT(After({"Up"}), ElementsAre(second));
    }
}

TEST_F(ImageListPopupTest, WithoutAPictureTheRowsStayAndWithoutRowsNothing)
{
    Show("", false, {"a", "b", "c"}, true, Texts{"/no/such/picture.png", first, ""}, 4, 4);
    After({"Down"});
    EXPECT_TRUE(evas_object_visible_get(Image()));
    After({"Down"});
    EXPECT_FALSE(evas_object_visible_get(Image())); // not the one of the row before
    EXPECT_EQ(Items().size(), 3U);
    Show("", false, {}, true, Texts{first}, 4, 4);
    EXPECT_EQ(Image(), nullptr);
    Press(list->t_popup, "Down");
}

} // namespace
