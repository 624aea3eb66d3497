#include "Digits.h"
#include "Mode.h"
#include "SettingKeys.h"
#include "SettingsWatch.h"
#include "VoiceGuide.h"
#include "Words.h"
#include "ea.h"
#include "toolkit/Panel.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace veskar
{
namespace
{

constexpr char FIELD_KEY[] = "veskar_pin_field";

/**
 * The field: a row with one cell for each digit. It holds the digits; a cell only shows whether it is filled and
 * whether it is next. While the number pad is on the screen the pad shows the focus, the field does not, and the sheet
 * makes room for the pad. Owned by the field's object, as its data.
 */
class PinField
{
public:
    PinField(Evas_Object* object, int length, Ea_Pin_Entered_Cb entered);
    ~PinField() { evas_object_data_del(m_object, FIELD_KEY); }
    PinField(const PinField&) = delete;
    PinField& operator=(const PinField&) = delete;

    static PinField* Of(const Ea_Pin* object)
    {
        return static_cast<PinField*>(evas_object_data_get(object, FIELD_KEY));
    }

    void Reset();
    std::string_view Text() const { return m_digits.View(); }

private:
    static void s_OnKey(void* data, Evas* evas, Evas_Object* object, void* event);
    static void s_OnHide(void* data, Evas* evas, Evas_Object* object, void* event);
    static void s_OnDeletion(void* data, Evas* evas, Evas_Object* object, void* event);
    static void s_OnFocus(void* data, Evas_Object* object, const char* emission, const char* source);
    static void s_OnUnfocus(void* data, Evas_Object* object, const char* emission, const char* source);
    static void s_OnClick(void* data, Evas_Object* object, const char* emission, const char* source);
    static void s_OnTheme(void* data, Evas_Object* cell, void* event);
    void m_AddCell();
    void m_OnKey(const char* key);
    void m_SetFocused(bool focused);
    void m_PadChanged();
    void m_Draw() const;

    Evas_Object* m_object;
    std::vector<Evas_Object*> m_cells;
    Digits m_digits;
    Ea_Pin_Entered_Cb m_entered;
    bool m_focused = false;
    bool m_padShown = false;
    SettingsWatch m_padWatch;
};

PinField::PinField(Evas_Object* object, int length, Ea_Pin_Entered_Cb entered)
    : m_object(object), m_digits(length), m_entered(entered),
      m_padWatch({NUMBER_PAD_SHOWN_KEY}, [this] { m_PadChanged(); })
{
    elm_layout_theme_set(m_object, "pin", "base", "default");
    elm_object_focus_allow_set(m_object, EINA_TRUE);
    for (int i = 0; i < length; ++i)
    {
        m_AddCell();
    }

    evas_object_event_callback_add(m_object, EVAS_CALLBACK_KEY_DOWN, s_OnKey, this);
    evas_object_event_callback_add(m_object, EVAS_CALLBACK_HIDE, s_OnHide, this);
    evas_object_event_callback_add(m_object, EVAS_CALLBACK_DEL, s_OnDeletion, this);
    // A plain layout has no other event for its focus.
    elm_layout_signal_callback_add(m_object, "elm,action,focus", "elm", s_OnFocus, this);
    elm_layout_signal_callback_add(m_object, "elm,action,unfocus", "elm", s_OnUnfocus, this);
    elm_layout_signal_callback_add(m_object, "elm,action,click", "elm", s_OnClick, this);
    evas_object_data_set(m_object, FIELD_KEY, this);
    m_PadChanged();
}

void PinField::m_AddCell()
{
    Evas_Object* cell = elm_layout_add(m_object);
    elm_layout_theme_set(cell, "pin", "digit", "default");
    // A cell loses what it shows when its theme changes.
    evas_object_smart_callback_add(cell, "theme,changed", s_OnTheme, this);
    elm_layout_box_append(m_object, "veskar.box.digits", cell);
    evas_object_show(cell);
    m_cells.push_back(cell);
}

void PinField::Reset()
{
    m_digits.Clear();
    m_Draw();
}

void PinField::m_OnKey(const char* key)
{
    const bool isDigit = key[0] >= '0' && key[0] <= '9' && key[1] == '\0';
    const std::size_t before = m_digits.Count();
    if (isDigit)
    {
        m_digits.Append(key[0]);
    }
    else if (std::strcmp(key, "BackSpace") == 0)
    {
        m_digits.RemoveLast();
    }
    if (m_digits.Count() == before)
    {
        return;
    }
    m_Draw();
    VoiceGuide::TheOne().SpeakNews(DigitOf(static_cast<int>(m_digits.Count()), static_cast<int>(m_cells.size())));
    if (m_entered && m_digits.Full())
    {
        m_entered(m_object);
    }
}

void PinField::m_SetFocused(bool focused)
{
    m_focused = focused;
    m_Draw();
}

void PinField::m_PadChanged()
{
    m_padShown = IsOn(NUMBER_PAD_SHOWN_KEY);
    if (Evas_Object* panel = PanelAround(m_object))
    {
        elm_layout_signal_emit(panel, m_padShown ? "veskar,pad,shown" : "veskar,pad,hidden", "veskar");
    }
    m_Draw();
}

void PinField::m_Draw() const
{
    for (std::size_t i = 0; i < m_cells.size(); ++i)
    {
        const bool filled = i < m_digits.Count();
        const bool isNext = m_focused && i == m_digits.Count();
        const bool hasFocus = isNext && !m_padShown;
        elm_layout_signal_emit(m_cells[i], filled ? "veskar,digit,filled" : "veskar,digit,empty", "veskar");
        elm_layout_signal_emit(m_cells[i], isNext ? "veskar,digit,next" : "veskar,digit,waiting", "veskar");
        elm_layout_signal_emit(m_cells[i], hasFocus ? "veskar,digit,focus" : "veskar,digit,unfocus", "veskar");
    }
}

void PinField::s_OnKey(void* data, Evas*, Evas_Object*, void* event)
{
    static_cast<PinField*>(data)->m_OnKey(static_cast<Evas_Event_Key_Down*>(event)->key);
}

/** A hidden field may exist for a long time; its digits must not. */
void PinField::s_OnHide(void* data, Evas*, Evas_Object*, void*)
{
    static_cast<PinField*>(data)->Reset();
}

void PinField::s_OnDeletion(void* data, Evas*, Evas_Object*, void*)
{
    delete static_cast<PinField*>(data);
}

void PinField::s_OnFocus(void* data, Evas_Object*, const char*, const char*)
{
    static_cast<PinField*>(data)->m_SetFocused(true);
}

void PinField::s_OnUnfocus(void* data, Evas_Object*, const char*, const char*)
{
    static_cast<PinField*>(data)->m_SetFocused(false);
}

void PinField::s_OnClick(void*, Evas_Object* object, const char*, const char*)
{
    evas_object_smart_callback_call(object, "clicked", nullptr);
}

void PinField::s_OnTheme(void* data, Evas_Object*, void*)
{
    static_cast<PinField*>(data)->m_Draw();
}

} // namespace

} // namespace veskar

using veskar::PinField;

Evas_Object* ea_pin_add(Evas_Object* parent, int length, Ea_Pin_Entered_Cb callback, void* data)
{
    Evas_Object* object = elm_layout_add(parent);
    if (!object)
    {
        return nullptr;
    }
    evas_object_data_set(object, "ea_pin_data", data);
    new PinField(object, length, callback);
    return object;
}

void ea_pin_reset(Ea_Pin* pin)
{
    if (PinField* field = PinField::Of(pin))
    {
        field->Reset();
    }
}

int ea_pin_get_text(const Ea_Pin* pin, char* buffer, int size)
{
    if (!buffer || size < 1)
    {
        return 0;
    }
    const PinField* field = PinField::Of(pin);
    const std::string_view digits = field ? field->Text() : std::string_view();
    const std::size_t count = digits.copy(buffer, std::min<std::size_t>(digits.size(), size - 1));
    buffer[count] = '\0';
    return static_cast<int>(count);
}
