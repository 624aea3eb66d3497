// Content that is higher than its place is shown to its end, a line at a time; other content does not move.
#include <Ecore.h>
#include <Ecore_Evas.h>
#include <Edje.h>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>

namespace
{

constexpr int WIDTH = 960; // the themes' own scale, half of 1920x1080
constexpr int HEIGHT = 540;

using Clock = std::chrono::steady_clock;

/** An object of the theme that shows `text` in `place`. */
struct Showing
{
    Evas_Object* object;
    const char* text;
    const char* place;

    int Top(const char* part) const
    {
        int y = 0;
        edje_object_part_geometry_get(object, part, nullptr, &y, nullptr, nullptr);
        return y;
    }
    int Bottom(const char* part) const
    {
        int height = 0;
        edje_object_part_geometry_get(object, part, nullptr, nullptr, nullptr, &height);
        return Top(part) + height;
    }
    bool AtStart() const { return Top(text) == Top(place); }
    bool AtEnd() const { return Bottom(text) <= Bottom(place); }
    bool TellsOfMore() const { return edje_object_part_state_get(object, "short", nullptr) == std::string("visible"); }
    void Signal(const char* signal) const
    {
        edje_object_signal_emit(object, signal, "elm");
        edje_object_message_signal_process(object);
    }
};

/** Runs the main loop until `so` is true; false after ten seconds. */
bool Becomes(const std::function<bool()>& so)
{
    const auto deadline = Clock::now() + std::chrono::seconds(10);
    const std::function<bool()> waits = [&so, deadline]
    {
        return !so() && Clock::now() < deadline;
    };
    const Ecore_Task_Cb look = [](void* data) -> Eina_Bool
    {
        if ((*static_cast<const std::function<bool()>*>(data))())
        {
            return ECORE_CALLBACK_RENEW;
        }
        ecore_main_loop_quit();
        return ECORE_CALLBACK_CANCEL;
    };
    ecore_timer_add(0.02, look, &waits);
    ecore_main_loop_begin();
    return so();
}

class Roll : public testing::Test
{
protected:
    void SetUp() override
    {
        ecore_evas_init();
        edje_init();
        m_canvas = ecore_evas_buffer_new(WIDTH, HEIGHT);
    }
    void TearDown() override
    {
        ecore_evas_free(m_canvas);
        edje_shutdown();
        ecore_evas_shutdown();
    }
    Evas_Object* Add(const char* group, int width, int height, const char* part, const std::string& text)
    {
        Evas_Object* object = edje_object_add(ecore_evas_get(m_canvas));
        EXPECT_TRUE(edje_object_file_set(object, VESKAR_THEME_FILE, group));
        edje_object_part_text_set(object, part, text.c_str());
        evas_object_resize(object, width, height);
        evas_object_show(object);
        return object;
    }
    Showing Title(const std::string& text)
    {
        const Showing title{Add("elm/popup/base/C_PopupBasic_WhiteBottom", WIDTH, HEIGHT, "elm.text.title", text),
                            "title", "elm.text.title"};
        title.Signal("elm,state,title_area,visible");
        return title;
    }
    Showing Button(const std::string& text)
    {
        return {Add("elm/button/base/C_ButtonBasic_WhiteText", 220, 96, "elm.text", text), "text", "elm.text"};
    }
    Showing Row(const std::string& text)
    {
        const char* group = "elm/genlist/item/C_TextItem_WhiteSingleline01/C_Scrollbar_White";
        return {Add(group, 480, 38, "elm.text", text), "text", "elm.text"};
    }

private:
    Ecore_Evas* m_canvas = nullptr;
};

TEST_F(Roll, WhatIsHigherThanItsPlaceIsShownToItsEndAndWhatIsNotRests)
{
    const std::string lines = "1<br>2<br>3<br>4";
    const std::vector<Showing> longer = {Title(lines + "<br>5"), Button(lines + "<br>5"), Row(lines)};
    const Showing waiting = Row(lines);
    const std::vector<Showing> fitting = {Title(lines), Button(lines), Row("1<br>2")};
    longer.back().Signal("elm,state,focused");
    fitting.back().Signal("elm,state,focused");
    for (const Showing& text : longer)
    {
        EXPECT_TRUE(text.AtStart());
        EXPECT_FALSE(text.AtEnd());
    }
    for (const Showing& text : longer)
    {
        EXPECT_TRUE(Becomes([&text] { return text.AtEnd(); })) << text.text << " of " << lines;
    }
    EXPECT_TRUE(waiting.AtStart());
    EXPECT_TRUE(waiting.TellsOfMore());
    for (const Showing& text : fitting)
    {
        EXPECT_TRUE(text.AtStart());
    }
    EXPECT_FALSE(fitting.back().TellsOfMore());
    EXPECT_FALSE(longer.back().TellsOfMore()) << "has moved";
    // A row that loses the focus shows its beginning again; meanwhile another text starts again after its end.
    longer.back().Signal("elm,state,unfocused");
    EXPECT_TRUE(longer.back().AtStart());
    EXPECT_TRUE(Becomes([&longer] { return longer.front().AtStart(); }));
}

} // namespace
