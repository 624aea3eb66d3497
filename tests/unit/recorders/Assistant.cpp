// The toolkit assistant's widgets, of which nothing is drawn, and its voice.

#include "Tv.h"

#include <cstdlib>

#include <ea.h>
#include <voice_guide.h>

Evas_Object* ea_textpage_add(Evas_Object* parent)
{
    Evas_Object* page = tv.Fails("ea_textpage_add") ? nullptr : elm_scroller_add(parent);
    tv.currentPages[page] = 0;
    return page;
}

void ea_textpage_text_set(Evas_Object*, char* text)
{
    tv.pageText = text;
    std::free(text);
}

void ea_textpage_page_show(Evas_Object* page, int number)
{
    tv.deeds.push_back("page " + std::to_string(number));
    tv.currentPages.at(page) = number;
}

int ea_textpage_current_page_get(const Evas_Object* page)
{
    return tv.currentPages[page];
}

int ea_textpage_total_page_get(const Evas_Object* page)
{
    return page != nullptr ? 3 : 0;
}

void ea_textpage_textblock_style_set(Evas_Object*, Evas_Textblock_Style* style)
{
    tv.pageStyle = evas_textblock_style_get(style);
    evas_textblock_style_free(style); // the page's, and nothing is drawn
}

Evas_Object* ea_pin_add(Evas_Object* parent, int length, Ea_Pin_Entered_Cb callback, void*)
{
    if (tv.Fails("ea_pin_add"))
    {
        return nullptr;
    }
    tv.deeds.push_back("pin " + std::to_string(length));
    Evas_Object* pin = elm_button_add(parent);
    evas_object_data_set(pin, "entered", reinterpret_cast<void*>(callback));
    return pin;
}

void ea_pin_reset(Ea_Pin*)
{
    tv.deeds.emplace_back("pin reset");
}

int ea_pin_get_text(const Ea_Pin*, char* buffer, int size)
{
    return static_cast<int>(eina_strlcpy(buffer, tv.texts["pin"].c_str(), static_cast<std::size_t>(size)));
}

void elm_access_force_say(const char* text)
{
    tv.deeds.push_back(std::string("say ") + text);
}
