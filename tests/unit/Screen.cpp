#include "Screen.h"

#include <fstream>
#include <memory>

#include <Ecore_Evas.h>
#include <unistd.h>

namespace
{

constexpr int WIDTH = 1920;
constexpr int HEIGHT = 1080;

void Collect(Evas_Object* object, const std::string& type, std::vector<Evas_Object*>& found)
{
    if (type == evas_object_type_get(object))
    {
        found.push_back(object);
    }
    const std::unique_ptr<Eina_Iterator, decltype(&eina_iterator_free)> members(evas_object_smart_iterator_new(object),
                                                                                eina_iterator_free);
    void* member = nullptr;
    while (members && eina_iterator_next(members.get(), &member))
    {
        Collect(static_cast<Evas_Object*>(member), type, found);
    }
}

} // namespace

ScreenTest::ScreenTest() : window(elm_win_add(nullptr, "test", ELM_WIN_DIALOG_BASIC))
{
    evas_object_resize(window, WIDTH, HEIGHT);
    evas_object_show(window);
    tv.Forget();
}

ScreenTest::~ScreenTest()
{
    evas_object_del(window);
    elm_config_scale_set(1.0); // some tests change it
}

void Settle()
{
    LoopEnds(0.05);
}

bool LoopEnds(double seconds)
{
    bool ended = true;
    Ecore_Timer* timer = ecore_timer_add(
        seconds,
        [](void* data) -> Eina_Bool
        {
            *static_cast<bool*>(data) = false;
            ecore_main_loop_quit();
            return ECORE_CALLBACK_CANCEL;
        },
        &ended);
    ecore_main_loop_begin();
    if (ended)
    {
        ecore_timer_del(timer);
    }
    return ended;
}

std::string WritePicture(const std::string& name, const std::string& pixel)
{
    std::string path = testing::TempDir() + name + std::to_string(getpid()) + ".ppm";
    std::ofstream(path) << "P6 2 2 255\n" << pixel << pixel << pixel << pixel;
    return path;
}

std::vector<Evas_Object*> Widgets(Evas_Object* root, const std::string& type)
{
    std::vector<Evas_Object*> found;
    Collect(root, type, found);
    return found;
}

std::vector<Evas_Object*> WidgetsOnScreen(Evas_Object* window, const std::string& type)
{
    std::vector<Evas_Object*> found;
    for (Evas_Object* object = evas_object_bottom_get(evas_object_evas_get(window)); object != nullptr;
         object = evas_object_above_get(object))
    {
        Collect(object, type, found);
    }
    return found;
}

Texts LabelTexts(Evas_Object* root)
{
    Texts texts;
    for (Evas_Object* label : Widgets(root, "elm_label"))
    {
        texts.push_back(TextOf(label));
    }
    return texts;
}

std::string TextOf(Evas_Object* widget, const char* part)
{
    const char* text = elm_object_part_text_get(widget, part);
    return text == nullptr ? "" : text;
}

void Press(Evas_Object* widget, const char* key)
{
    Evas* evas = evas_object_evas_get(widget);
    evas_object_focus_set(widget, EINA_TRUE);
    evas_event_feed_key_down(evas, key, key, "", "", 0, nullptr);
    evas_event_feed_key_up(evas, key, key, "", "", 0, nullptr);
}

Evas_Object* Focused(Evas_Object* window)
{
    Ecore_Evas* canvas = ecore_evas_ecore_evas_get(evas_object_evas_get(window));
    ecore_evas_focus_set(canvas, 0);
    ecore_evas_focus_set(canvas, 1);
    Settle();
    return elm_object_focused_object_get(window);
}

void Click(Evas_Object* widget)
{
    evas_object_smart_callback_call(widget, "clicked", nullptr);
}
