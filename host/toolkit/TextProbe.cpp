#include "TextProbe.h"

#include <cstdlib>
#include <string_view>

namespace veskar
{
namespace
{

constexpr int ENDLESS = 100000;
constexpr std::string_view FONT_SIZE = "font_size=";

} // namespace

TextProbe::TextProbe(Evas_Object* text)
    : m_style(evas_textblock_style_new()), m_added(evas_textblock_style_new()),
      m_text(evas_object_textblock_add(evas_object_evas_get(text)))
{
    const char* style = evas_textblock_style_get(evas_object_textblock_style_get(text));
    m_givenStyle = style != nullptr ? style : "";
    evas_textblock_style_set(m_style.get(), m_givenStyle.c_str());
    evas_object_textblock_style_set(m_text.get(), m_style.get());
    Format("");
    evas_object_scale_set(m_text.get(), evas_object_scale_get(text));
    evas_object_textblock_text_markup_set(m_text.get(), evas_object_textblock_text_markup_get(text));
}

void TextProbe::Format(const std::string& format)
{
    evas_object_textblock_style_user_pop(m_text.get());
    evas_textblock_style_set(m_added.get(), ("DEFAULT='wrap=word " + format + "'").c_str());
    evas_object_textblock_style_user_push(m_text.get(), m_added.get());
}

int TextProbe::LinesAt(int width)
{
    m_Resize(width);
    int lines = 0;
    while (evas_object_textblock_line_number_geometry_get(m_text.get(), lines, nullptr, nullptr, nullptr, nullptr))
    {
        ++lines;
    }
    return lines;
}

bool TextProbe::WordsFit(int width)
{
    m_Resize(width);
    int widest = 0;
    evas_object_textblock_size_formatted_get(m_text.get(), &widest, nullptr);
    return widest <= width;
}

int TextProbe::FontSize() const
{
    const std::size_t at = m_givenStyle.find(FONT_SIZE);
    return at == std::string::npos ? 0 : std::atoi(m_givenStyle.c_str() + at + FONT_SIZE.size());
}

void TextProbe::m_Resize(int width)
{
    evas_object_resize(m_text.get(), width, ENDLESS);
}

} // namespace veskar
