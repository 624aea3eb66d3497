#include "MessagePopup.h"

#include "EflGuard.h"
#include "Log.h"
#include "Markup.h"
#include "Orientation.h"
#include "TextStyle.h"

#include <cstring>
#include <string_view>

#include <ea.h>

namespace VESKAR_APP
{

namespace
{

// A text of exactly this many bytes is a label in the large popup: the two limits differ by one.
constexpr std::size_t LARGE_POPUP_BYTES = 300;
constexpr std::size_t MAX_LABEL_BYTES = 300;

constexpr const char* PAGE_STYLE = "C_Scrollbar_White";
constexpr const char* TEXT_PAGE_FONT = "BrelmonFace_300";
constexpr const char* PARAGRAPH_ALIGNMENT = "mixed";

constexpr std::string_view KEY_UP = "Up";
constexpr std::string_view KEY_DOWN = "Down";

void SetLabelText(Evas_Object* label, const std::string& markup)
{
    EFL_GUARD(elm_object_part_text_set, label, nullptr, markup.c_str());
}

} // namespace

MessagePopup::MessagePopup(IUserInteraction& userInteraction, const std::string& title, const std::string& sub,
                           const std::string& text, const std::string& bottom, const std::vector<std::string>& buttons,
                           bool noClose, Evas_Object* mainWindow)
    : BaseDisplay(userInteraction, mainWindow, buttons,
                  text.size() < LARGE_POPUP_BYTES ? POPUP_STYLE : LARGE_POPUP_STYLE, true),
      m_content(nullptr), m_text(text), m_noClose(noClose)
{
    t_SetTexts(title, sub, bottom);
}

Evas_Object* MessagePopup::m_CreateWindowContent(Evas_Object* layout, Evas_Object* /*box*/)
{
    LOG_ENTRY();
    const std::string markup = ToMarkup(m_text);
    Evas_Object* content = m_text.size() <= MAX_LABEL_BYTES ? m_CreateTextLabel(markup.c_str(), layout)
                                                            : m_CreateTextPage(markup.c_str(), layout);
    t_SetTTSText(markup, nullptr);
    return content;
}

Evas_Object* MessagePopup::m_CreateTextLabel(const char* markup, Evas_Object* parent)
{
    LOG_INFO("label: " << markup);
    {
        const MainLoopSection section;
        m_content = elm_label_add(parent);
        elm_object_text_set(m_content, markup);
        elm_object_style_set(m_content, LABEL_STYLE);
    }
    std::string text;
    if (GetNumberLinesText(m_content, TEXT_PART) < 2)
    {
        LOG_INFO("Center aligned text");
        text = std::string("<align=center>") + markup;
        EFL_GUARD(evas_object_size_hint_align_set, m_content, 0.5, 0.5);
    }
    else
    {
        EFL_GUARD(elm_label_line_wrap_set, m_content, ELM_WRAP_WORD);
        const bool rightToLeft = IsRightToLeft();
        LOG_INFO((rightToLeft ? "Right" : "Left") << " aligned text");
        text = std::string(rightToLeft ? "<align=right>" : "<align=left>") + markup;
    }
    SetLabelText(m_content, text + "</align>");
    PaintLabelWhite(m_content);
    // The label fills its place in either case; it is the markup that centres a single line.
    EFL_GUARD(evas_object_size_hint_align_set, m_content, EVAS_HINT_FILL, EVAS_HINT_FILL);
    EFL_GUARD(evas_object_size_hint_weight_set, m_content, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    EFL_GUARD(evas_object_show, m_content);
    return m_content;
}

Evas_Object* MessagePopup::m_CreateTextPage(const char* markup, Evas_Object* parent)
{
    LOG_ENTRY();
    m_content = m_AddTextPageObj(parent);
    if (m_content == nullptr)
    {
        LOG_ERROR("Failed to add a textpage");
        return nullptr;
    }
    const MainLoopSection section;
    ea_textpage_text_set(m_content, strndup(markup, std::strlen(markup))); // the page frees its copy
    evas_object_size_hint_align_set(m_content, EVAS_HINT_FILL, EVAS_HINT_FILL);
    ea_textpage_page_show(m_content, 0);
    return m_content;
}

Evas_Object* MessagePopup::m_AddTextPageObj(Evas_Object* parent)
{
    LOG_ENTRY();
    Evas_Object* page = EFL_GUARD(ea_textpage_add, parent);
    if (page == nullptr)
    {
        LOG_ERROR("Adding a textpage has failed");
        return nullptr;
    }
    {
        const MainLoopSection section;
        elm_object_style_set(page, PAGE_STYLE);
        elm_object_focus_allow_set(page, EINA_FALSE);
        elm_scroller_policy_set(page, ELM_SCROLLER_POLICY_OFF, ELM_SCROLLER_POLICY_ON);
        elm_scroller_bounce_set(page, EINA_FALSE, EINA_TRUE);
    }
    const std::string size = std::to_string(PageFontSize());
    const std::string style = std::string("DEFAULT='font=") + TEXT_PAGE_FONT + " font_size=" + size +
                              " linesize=" + size + " linegap=0 align=" + PARAGRAPH_ALIGNMENT +
                              " wrap=word color=" + TextColour() + "'";
    LOG_DEBUG("Text style: " << style);
    const MainLoopSection section;
    Evas_Textblock_Style* textStyle = evas_textblock_style_new(); // the page's from here on
    evas_textblock_style_set(textStyle, style.c_str());
    ea_textpage_textblock_style_set(page, textStyle);
    return page;
}

void MessagePopup::t_OnKeyPressed(void* eventInfo)
{
    LOG_ENTRY();
    if (eventInfo == nullptr)
    {
        LOG_ERROR("Unable to cast event to Evas_Event_Key_Down");
        return;
    }
    if (m_content == nullptr)
    {
        LOG_ERROR("Text page is undefined");
        return;
    }
    // A label has no pages: both are 0 then, and Up and Down find nowhere to go.
    const int current = EFL_GUARD(ea_textpage_current_page_get, m_content);
    const int total = EFL_GUARD(ea_textpage_total_page_get, m_content);
    const std::string_view key = static_cast<Evas_Event_Key_Down*>(eventInfo)->key;
    if (key == KEY_UP)
    {
        if (current >= 1)
        {
            LOG_INFO("Textpage is present & UP key pressed. Will show page: " << current - 1 << "/" << total);
            EFL_GUARD(ea_textpage_page_show, m_content, current - 1);
        }
    }
    else if (key == KEY_DOWN)
    {
        if (total - 1 > current)
        {
            LOG_INFO("Textpage is present & DOWN key pressed. Will show page: " << current + 1 << "/" << total);
            EFL_GUARD(ea_textpage_page_show, m_content, current + 1);
        }
    }
    else if (!m_noClose)
    {
        BaseDisplay::t_OnKeyPressed(eventInfo);
    }
}

} // namespace VESKAR_APP
