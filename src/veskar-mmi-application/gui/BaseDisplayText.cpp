// BaseDisplay's texts: markup, sizes and colours by the accessibility settings, line counts, and the voice guide.

#include "BaseDisplay.h"
#include "EflGuard.h"
#include "Log.h"
#include "Markup.h"
#include "Names.h"
#include "ScaledSize.h"

#include <string_view>

#include <vconf.h>
#include <voice_guide.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* ENLARGED_SETTING = "db/menu/system/accessibility/focuszoom";
constexpr const char* HIGH_CONTRAST_SETTING = "db/menu/system/accessibility/highcontrast";

constexpr const char* SPOKEN_SEPARATOR = ", ";

int ReadModeSetting(const char* key)
{
    int value = 0;
    if (vconf_get_int(key, &value) != 0)
    {
        LOG_ERROR("Failed to read " << key << ", set to default value 0");
    }
    return value;
}

/** Inside a main-loop section; another theme passes over what it does not know. */
void TellTheme(Evas_Object* label, const char* signal)
{
    elm_object_signal_emit(label, signal, "veskar");
    edje_object_message_signal_process(elm_layout_edje_get(label));
}

} // namespace

void BaseDisplay::s_StoreMarkupText(const std::string& text, std::string& out)
{
    out = ToMarkup(text);
}

bool BaseDisplay::s_CheckEnlargedMode()
{
    LOG_ENTRY();
    const int value = ReadModeSetting(ENLARGED_SETTING);
    LOG_DEBUG("Large text mode : " << value);
    return value != 0;
}

bool BaseDisplay::s_CheckHighContrastMode()
{
    LOG_ENTRY();
    const int value = ReadModeSetting(HIGH_CONTRAST_SETTING);
    LOG_DEBUG("High contrast mode : " << value);
    return value != 0;
}

int BaseDisplay::s_TextFontSize()
{
    return ScaledSize(s_CheckEnlargedMode() ? 31 : 25);
}

const char* BaseDisplay::s_TextColour()
{
    // The dimmer colour is the one of high contrast, by design.
    return s_CheckHighContrastMode() ? "#7F7F7F" : "#FFFFFF";
}

void BaseDisplay::s_PaintLabelWhite(Evas_Object* label)
{
    // The mode is read for the log; a label stands on the popup's dark ground in either mode and stays white.
    s_CheckHighContrastMode();
    EFL_GUARD(evas_object_color_set, label, 255, 255, 255, 255);
}

int BaseDisplay::GetNumberLinesText(const Evas_Object* object, const char* partName)
{
    LOG_INFO("m_GetTextBlockLineNumber part name:" << partName);
    Evas_Object* edje = EFL_GUARD(elm_layout_edje_get, object);
    if (edje == nullptr)
    {
        LOG_ERROR("Get layout failed!");
        return 0;
    }
    const Evas_Object* textblock = EFL_GUARD(edje_object_part_object_get, edje, partName);
    if (textblock == nullptr)
    {
        LOG_ERROR("Text block is null!");
        return 0;
    }
    int lines = 0;
    int width = 0;
    int height = 0;
    while (
        EFL_GUARD(evas_object_textblock_line_number_geometry_get, textblock, lines, nullptr, nullptr, &width, &height))
    {
        ++lines;
        LOG_INFO("line num: " << lines << " nTextV: " << height << " nTextH:" << width);
    }
    return lines;
}

void BaseDisplay::t_PlaceLabel(Evas_Object* label) const
{
    if (m_IsRightDocked())
    {
        const MainLoopSection section;
        TellTheme(label, "veskar,side");
    }
}

void BaseDisplay::m_AlignLabelText(Evas_Object* label, const std::string& text)
{
    LOG_ENTRY();
    if (label == nullptr)
    {
        return;
    }
    const int fontSize = s_TextFontSize();
    s_PaintLabelWhite(label);
    // Nothing opens the colour that ends here; the toolkit passes over such a tag, and the line keeps it.
    const std::string markup =
        "<font=Sans:style=Regular font_size=" + std::to_string(fontSize) + ">" + text + "</font></color>";
    {
        const MainLoopSection section;
        elm_object_text_set(label, markup.c_str());
        elm_object_style_set(label, LABEL_STYLE);
    }
    t_PlaceLabel(label);
    const bool oneLine = GetNumberLinesText(label, TEXT_PART) < 2;
    const MainLoopSection section;
    if (oneLine)
    {
        // Not wrapped, also after an update: a wrapped label has no width of its own and vanishes when it is centred.
        elm_label_line_wrap_set(label, ELM_WRAP_NONE);
        evas_object_size_hint_align_set(label, 0.5, 0.5);
    }
    else
    {
        elm_label_line_wrap_set(label, ELM_WRAP_WORD);
        evas_object_size_hint_align_set(label, EVAS_HINT_FILL, EVAS_HINT_FILL);
    }
    // The markup around it keeps the toolkit from seeing that there is no text.
    if (text.empty())
    {
        TellTheme(label, "veskar,empty");
    }
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
