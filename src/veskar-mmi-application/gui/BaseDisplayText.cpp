// BaseDisplay's texts: markup, sizes and colours by the accessibility settings, line counts, and the voice guide.

#include "BaseDisplay.h"
#include "EflGuard.h"
#include "LineCount.h"
#include "Log.h"
#include "Markup.h"
#include "TextStyle.h"

#include <string_view>

#include <voice_guide.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* SPOKEN_SEPARATOR = ", ";

} // namespace

void BaseDisplay::s_StoreMarkupText(const std::string& text, std::string& out)
{
    out = ToMarkup(text);
}

bool BaseDisplay::s_CheckEnlargedMode()
{
    return IsTextEnlarged();
}

bool BaseDisplay::s_CheckHighContrastMode()
{
    return IsHighContrast();
}

int BaseDisplay::GetNumberLinesText(const Evas_Object* object, const char* partName)
{
    return CountLines(object, partName);
}

void BaseDisplay::m_AlignLabelText(Evas_Object* label, const std::string& text)
{
    LOG_ENTRY();
    const int fontSize = TextFontSize();
    PaintLabelWhite(label);
    // Nothing opens the colour that ends here; the toolkit passes over such a tag, and the line keeps it.
    const std::string markup =
        "<font=Sans:style=Regular font_size=" + std::to_string(fontSize) + ">" + text + "</font></color>";
    if (label != nullptr)
    {
        const MainLoopSection section;
        elm_object_text_set(label, markup.c_str());
        elm_object_style_set(label, LABEL_STYLE);
    }
    if (GetNumberLinesText(label, TEXT_PART) < 2)
    {
        EFL_GUARD(evas_object_size_hint_align_set, label, 0.5, 0.5);
        return;
    }
    EFL_GUARD(elm_label_line_wrap_set, label, ELM_WRAP_WORD);
}

void BaseDisplay::t_SetTTSText(const std::string& text, Evas_Object* /*object*/)
{
    LOG_DEBUG("Content Text to be read by TTS/Voice Guide:" << text);
    t_ttsText.clear();
    for (const std::string_view part : std::initializer_list<std::string_view>{t_title, t_subtitle, text, t_bottomText})
    {
        t_ttsText.append(part).append(SPOKEN_SEPARATOR);
    }
    if (t_displayedButtons != 0)
    {
        const char* label = EFL_GUARD(elm_object_part_text_get, t_buttons[0], nullptr);
        t_ttsText += label != nullptr ? label : "";
    }
    EFL_GUARD(elm_access_force_say, t_ttsText.c_str());
    LOG_INFO("TTS/Voice Guide text for this popup:" << t_ttsText);
}

} // namespace VESKAR_APP
