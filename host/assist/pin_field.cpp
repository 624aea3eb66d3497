#include "digits.h"
#include "ea.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace
{

constexpr char fieldKey[] = "veskar_pin_field";
constexpr char userDataKey[] = "ea_pin_data";

/**
 * The field: one cell for each digit in a row. Holds the digits; the cells know only whether they are filled and whose
 * turn it is. Lives on the field's object as its data and goes with it.
 */
class PinField
{
public:
    PinField(Evas_Object* object, int length, Ea_Pin_Entered_Cb entered);
    ~PinField() { evas_object_data_del(m_object, fieldKey); }
    PinField(const PinField&) = delete;
    PinField& operator=(const PinField&) = delete;

    static PinField* Of(const Ea_Pin* object) { return static_cast<PinField*>(evas_object_data_get(object, fieldKey)); }

    void Reset();
    std::string_view Text() const { return m_digits.View(); }

private:
    void m_AddCell();
    void m_OnKey(const char* key);
    void m_Draw() const;

    Evas_Object* m_object;
    std::vector<Evas_Object*> m_cells;
    Digits m_digits;
    Ea_Pin_Entered_Cb m_entered;
};

PinField::PinField(Evas_Object* object, int length, Ea_Pin_Entered_Cb entered)
    : m_object(object), m_digits(length), m_entered(entered)
{
    elm_layout_theme_set(m_object, "pin", "base", "default");
    elm_object_focus_allow_set(m_object, EINA_TRUE);
    for (int i = 0; i < length; ++i)
    {
        m_AddCell();
    }

    const auto pressed = [](void* data, Evas*, Evas_Object*, void* event)
    {
        static_cast<PinField*>(data)->m_OnKey(static_cast<Evas_Event_Key_Down*>(event)->key);
    };
    const auto gone = [](void* data, Evas*, Evas_Object*, void*)
    {
        delete static_cast<PinField*>(data);
    };
    const auto focusMoved = [](void* data, Evas_Object*, void*)
    {
        static_cast<PinField*>(data)->m_Draw();
    };
    const auto clicked = [](void*, Evas_Object* field, const char*, const char*)
    {
        evas_object_smart_callback_call(field, "clicked", nullptr);
    };
    evas_object_event_callback_add(m_object, EVAS_CALLBACK_KEY_DOWN, pressed, this);
    evas_object_event_callback_add(m_object, EVAS_CALLBACK_DEL, gone, this);
    evas_object_smart_callback_add(m_object, "focused", focusMoved, this);
    evas_object_smart_callback_add(m_object, "unfocused", focusMoved, this);
    elm_layout_signal_callback_add(m_object, "elm,action,click", "elm", clicked, nullptr);
    evas_object_data_set(m_object, fieldKey, this);
}

void PinField::m_AddCell()
{
    Evas_Object* cell = elm_layout_add(m_object);
    elm_layout_theme_set(cell, "pin", "digit", "default");
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
    const bool wasFull = m_digits.Full();
    if (isDigit)
    {
        m_digits.Append(key[0]);
    }
    else if (std::strcmp(key, "BackSpace") == 0)
    {
        m_digits.RemoveLast();
    }
    m_Draw();
    if (m_entered && m_digits.Full() && !wasFull)
    {
        m_entered(m_object);
    }
}

void PinField::m_Draw() const
{
    const bool focused = elm_object_focus_get(m_object);
    for (std::size_t i = 0; i < m_cells.size(); ++i)
    {
        const bool filled = i < m_digits.Count();
        const bool current = focused && i == m_digits.Count();
        elm_layout_signal_emit(m_cells[i], filled ? "veskar,digit,filled" : "veskar,digit,empty", "veskar");
        elm_layout_signal_emit(m_cells[i], current ? "veskar,digit,current" : "veskar,digit,waiting", "veskar");
    }
}

} // namespace

Evas_Object* ea_pin_add(Evas_Object* parent, int length, Ea_Pin_Entered_Cb callback, void* data)
{
    Evas_Object* object = elm_layout_add(parent);
    if (!object)
    {
        return nullptr;
    }
    evas_object_data_set(object, userDataKey, data);
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
