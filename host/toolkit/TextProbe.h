/** Lays out the text of a part at other widths and sizes, out of sight. */
#pragma once

#include <Elementary.h>

#include <memory>
#include <string>

namespace veskar
{

class TextProbe
{
public:
    /** Takes over text and style of `text`, a textblock that is laid out. */
    explicit TextProbe(Evas_Object* text);

    /** Adds `format`, for example "font_size=25", to the style of the whole text. Words are not broken then. */
    void Format(const std::string& format);

    int LinesAt(int width);
    /** Whether no word stands out. */
    bool WordsFit(int width);

    /** The letters' size in the style, before scaling; 0 where it names none. */
    int FontSize() const;

private:
    struct Deleter
    {
        void operator()(Evas_Object* object) const { evas_object_del(object); }
        void operator()(Evas_Textblock_Style* style) const { evas_textblock_style_free(style); }
    };

    void m_Resize(int width);

    std::string m_givenStyle;
    std::unique_ptr<Evas_Textblock_Style, Deleter> m_style;
    std::unique_ptr<Evas_Textblock_Style, Deleter> m_added;
    std::unique_ptr<Evas_Object, Deleter> m_text; // deleted before the styles that it uses
};

} // namespace veskar
