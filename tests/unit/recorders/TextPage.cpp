// The toolkit assistant's text page, without text.

#include "Tv.h"

#include <cstdlib>

#include <ea.h>

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
