// Lines of text in all scripts are as high as those in Latin letters, and nothing that is drawn is cut at their edges.
#include <Ecore_Evas.h>
#include <algorithm>
#include <clocale>
#include <gtest/gtest.h>
#include <set>

namespace
{

constexpr int WIDTH = 1600;
constexpr int HEIGHT = 400;
constexpr int SIZE = 46;

const std::vector<const char*> SAMPLES = {
    "Ậ Phường Ữ Ẫ Ể Ự", "Ώ Ϊ ΰ",         "Ёлка Йод Щука Ґ",
    "새 채널이 뷁 쀍",  "频道：骨龘",    "チャンネル「直」",
    "שּׁ לַחְבִּילָה לֹּ",       "ปี่ ญู ฐี้ กุ้ง น้ำ",   "क्षत्रिय र्कैं ट्ठी ङ्क्त्यू",
    "ক্ষ্ম্যু র্কি",         "தமிழ் ஶ்ரீ",       "తెలుగు స్త్రీ",
    "ភាសាខ្មែរ ស្ត្រី",     "မြန်မာ",         "ພາສາ ນ້ຳ ປື້",
    "ქართული",          "→ ✓ ★ ⚠ ☎ ⏏ ▶", "😀 👨‍👩‍👧 📺",
};
/** With vowel signs above the letters; all lines of this script have some room for them. */
const std::vector<const char*> ARABIC_SAMPLES = {"تمت إضافة قنوات", "ٱلْعَرَبِيَّةُ جدًّا عٍّ", "نئے چینل ٹھیک ٹَّ"};

struct Drawing
{
    int height;
    int inked; // rows of pixels with something in them
    std::vector<unsigned> pixels;
};

} // namespace

class Scripts : public testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        ecore_evas_init();
        m_canvas = ecore_evas_buffer_new(WIDTH, HEIGHT);
        Evas_Object* ground = evas_object_rectangle_add(ecore_evas_get(m_canvas));
        evas_object_resize(ground, WIDTH, HEIGHT);
        evas_object_color_set(ground, 0, 0, 0, 255);
        evas_object_show(ground);
    }

    void TearDown() override
    {
        ecore_evas_free(m_canvas);
        ecore_evas_shutdown();
    }

    /** The text as in a part of the theme: an object of exactly the height that the text reports. */
    Drawing Draw(const std::string& markup)
    {
        Evas_Textblock_Style* style = evas_textblock_style_new();
        const std::string font = std::string("Sans:style=") + GetParam();
        const std::string base = "DEFAULT='font=" + font + " font_size=" + std::to_string(SIZE) + " color=#fff'";
        evas_textblock_style_set(style, base.c_str());
        Evas_Object* text = evas_object_textblock_add(ecore_evas_get(m_canvas));
        evas_object_textblock_style_set(text, style);
        evas_object_resize(text, WIDTH, HEIGHT);
        evas_object_textblock_text_markup_set(text, markup.c_str());
        Drawing drawing{};
        evas_object_textblock_size_formatted_get(text, nullptr, &drawing.height);
        evas_object_resize(text, WIDTH, drawing.height);
        evas_object_show(text);
        ecore_evas_manual_render(m_canvas);
        const auto* pixels = static_cast<const unsigned*>(ecore_evas_buffer_pixels_get(m_canvas));
        drawing.pixels.assign(pixels, pixels + std::size_t{WIDTH} * HEIGHT);
        for (auto row = drawing.pixels.begin(); row != drawing.pixels.end(); row += WIDTH)
        {
            drawing.inked += std::any_of(row, row + WIDTH, [](unsigned pixel) { return (pixel & 0xff) > 0x40; });
        }
        evas_object_del(text);
        evas_textblock_style_free(style);
        return drawing;
    }

    /** The text has as many inked rows of pixels as with empty lines above and below it. */
    void ExpectWhole(const char* text)
    {
        const std::string line = text;
        EXPECT_EQ(Draw(line).inked, Draw("<br/>" + line + "<br/>").inked) << "cut: " << text;
    }

    Ecore_Evas* m_canvas = nullptr;
};

TEST_P(Scripts, HaveLinesOfOneHeightAndWholeLetters)
{
    const int one = Draw("Latin").height;
    const int two = Draw("Latin<br/>Latin").height;
    for (const char* text : SAMPLES)
    {
        EXPECT_EQ(Draw(text).height, one) << text;
        EXPECT_EQ(Draw(std::string(text) + "<br/>" + text).height, two) << text;
        ExpectWhole(text);
    }
    for (const char* text : ARABIC_SAMPLES)
    {
        const int height = Draw(text).height;
        EXPECT_LE(height, one + SIZE / 4) << text;
        EXPECT_EQ(Draw(std::string(text) + "<br/>" + text).height, height + two - one) << text;
        ExpectWhole(text);
    }
}

TEST_P(Scripts, HaveTheFormsOfTheLanguage)
{
    std::set<std::vector<unsigned>> forms;
    for (const char* language : {"ja_JP.utf8", "ko_KR.utf8", "zh_CN.utf8", "zh_TW.utf8"})
    {
        setlocale(LC_ALL, language);
        evas_language_reinit();
        EXPECT_TRUE(forms.insert(Draw("直骨令将返角曜").pixels).second) << language << " looks like another language";
    }
}

INSTANTIATE_TEST_SUITE_P(Faces, Scripts, testing::Values("Regular", "Bold"),
                         [](const auto& face) { return std::string(face.param); });
