#include "PadWindow.h"

#include "Log.h"
#include "TvBus.h"

#include <Ecore_Evas.h>
#include <cstring>
#include <ecore_wayland.h>

namespace veskar
{

namespace
{

Evas_Object* CreateWindow()
{
    constexpr const char* ID = Applications::NUMBER_PAD;
    Evas_Object* window = elm_win_add(nullptr, ID, ELM_WIN_BASIC);
    // The compositor recognises an overlay (a window over the screens, without the focus) by this class.
    ecore_evas_name_class_set(ecore_evas_ecore_evas_get(evas_object_evas_get(window)), ID, ID);
    elm_win_alpha_set(window, EINA_TRUE);
    return window;
}

void FillParent(Evas_Object* object)
{
    evas_object_size_hint_weight_set(object, EVAS_HINT_EXPAND, EVAS_HINT_EXPAND);
    evas_object_size_hint_align_set(object, EVAS_HINT_FILL, EVAS_HINT_FILL);
}

/** Digits keep their order even in a mirrored user interface. */
Evas_Object* AddTable(Evas_Object* parent)
{
    Evas_Object* table = elm_table_add(parent);
    elm_object_mirrored_automatic_set(table, EINA_FALSE);
    elm_object_mirrored_set(table, EINA_FALSE);
    return table;
}

} // namespace

PadWindow::PadWindow(std::function<void()> alone) : m_alone(std::move(alone)), m_window(CreateWindow())
{
    evas_object_smart_callback_add(Window(), "unfocused", s_OnUnfocused, this);
}

void PadWindow::Show(const KeyGrid& keys, std::function<void()> appeared)
{
    m_appeared = std::move(appeared);
    m_AddPanel(keys);
    SetCurrent(keys.Current());
    evas_event_callback_add(evas_object_evas_get(Window()), EVAS_CALLBACK_RENDER_POST, s_OnDrawn, this);
    evas_object_show(Window());
}

void PadWindow::Hide()
{
    evas_event_callback_del_full(evas_object_evas_get(Window()), EVAS_CALLBACK_RENDER_POST, s_OnDrawn, this);
    evas_object_hide(Window());
    m_check.reset();
    m_keys.clear();
    m_panel.reset();
}

void PadWindow::m_AddPanel(const KeyGrid& keys)
{
    Evas_Object* screen = elm_layout_add(Window());
    if (!elm_layout_theme_set(screen, "numpad", "base", "default"))
    {
        NUMPAD_ERROR("the theme has no number pad");
    }
    FillParent(screen);
    elm_win_resize_object_add(Window(), screen);
    evas_object_show(screen);
    m_panel.reset(screen);
    m_current = 0;

    Evas_Object* table = AddTable(screen);
    for (const KeyGrid::Place& place : keys.Places())
    {
        m_keys.push_back(m_AddKey(place.key));
        elm_table_pack(table, m_keys.back(), place.from, place.row, place.width, 1);
    }
    elm_object_part_content_set(screen, "elm.swallow.content", table);
}

Evas_Object* PadWindow::m_AddKey(const char* key)
{
    const bool isDigit = std::strlen(key) == 1;
    Evas_Object* object = elm_layout_add(m_panel.get());
    elm_layout_theme_set(object, "numpad", "key", isDigit ? "default" : key);
    if (isDigit)
    {
        elm_object_part_text_set(object, "elm.text", key);
    }
    FillParent(object);
    evas_object_show(object);
    return object;
}

void PadWindow::SetCurrent(std::size_t key)
{
    elm_layout_signal_emit(m_keys[m_current], "veskar,key,waiting", "veskar");
    elm_layout_signal_emit(m_keys[key], "veskar,key,current", "veskar");
    m_current = key;
}

void PadWindow::s_OnDrawn(void* data, Evas* canvas, void*)
{
    auto* self = static_cast<PadWindow*>(data);
    evas_event_callback_del_full(canvas, EVAS_CALLBACK_RENDER_POST, s_OnDrawn, self);
    ecore_wl2_sync(); // the compositor has the picture after this
    self->m_appeared();
}

void PadWindow::s_OnUnfocused(void* data, Evas_Object*, void*)
{
    auto* self = static_cast<PadWindow*>(data);
    // A window that appears gets the focus, loses it to the screen below and is told of it again, in one go.
    if (self->m_panel && !self->m_check)
    {
        self->m_check.reset(ecore_job_add(s_CheckFocus, self));
    }
}

void PadWindow::s_CheckFocus(void* data)
{
    auto* self = static_cast<PadWindow*>(data);
    static_cast<void>(self->m_check.release()); // the toolkit deletes it after this
    if (!elm_win_focus_get(self->Window()))
    {
        self->m_alone();
    }
}

} // namespace veskar
