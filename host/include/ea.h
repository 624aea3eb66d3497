/** The platform's toolkit assistant: widgets that the toolkit itself does not have. Main loop only. */
#pragma once

#include <Elementary.h>

#ifdef __cplusplus
extern "C"
{
#endif

    /** Prepares the assistant; may be called again. */
    void ea_init(void);

    /** A text in pages, numbered from 0; a child of `parent`, deleted with it. Null when it cannot be made. */
    Evas_Object* ea_textpage_add(Evas_Object* parent);
    /** Markup; the page takes ownership of the malloc'd `text`. */
    void ea_textpage_text_set(Evas_Object* page, char* text);
    /** A page number outside the text is ignored. */
    void ea_textpage_page_show(Evas_Object* page, int number);
    /** Both give 0 for an object that is not a text page. */
    int ea_textpage_current_page_get(const Evas_Object* page);
    int ea_textpage_total_page_get(const Evas_Object* page);
    /** The page takes ownership of the style and frees it with itself. */
    void ea_textpage_textblock_style_set(Evas_Object* page, Evas_Textblock_Style* style);

    /** A field of masked digits. */
    typedef Evas_Object Ea_Pin;

    /** Called once each time the field has become full. */
    typedef void (*Ea_Pin_Entered_Cb)(Ea_Pin* pin);

    /**
     * A field of `length` digits that takes "0" to "9" and "BackSpace" while it has the focus; emits "clicked". A child
     * of `parent`, deleted with it. `data` is kept on the object under the name "ea_pin_data".
     */
    Evas_Object* ea_pin_add(Evas_Object* parent, int length, Ea_Pin_Entered_Cb callback, void* data);
    void ea_pin_reset(Ea_Pin* pin);
    /** Copies at most size - 1 digits and a terminating zero into `buffer`; returns the number of digits copied. */
    int ea_pin_get_text(const Ea_Pin* pin, char* buffer, int size);

#ifdef __cplusplus
}
#endif
