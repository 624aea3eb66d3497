#include "Routing.h"

#include "seat/DeskKeyboard.h"
#include "seat/Unfocused.h"

namespace veskar
{

namespace
{

const Key* KeyOf(uint32_t code)
{
    const Key* injected = KeyByCode(code);
    return injected != nullptr ? injected : DeskKey(code);
}

void IgnoreModifiers(weston_keyboard_grab*, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t) {}

void IgnoreCancel(weston_keyboard_grab*) {}

} // namespace

Routing::Routing(Seat& seat, const GrabTable& grabs, const LateDigits& lateDigits, const WindowStack& windows,
                 TakenKeys& taken)
    : m_seat(seat), m_grabs(grabs), m_lateDigits(lateDigits), m_windows(windows),
      m_taken(taken), m_hook{{s_OnKey, IgnoreModifiers, IgnoreCancel}, this},
      m_replaced(seat.Keyboard()->default_grab.interface)
{
    m_seat.Keyboard()->default_grab.interface = &m_hook.handlers;
}

Routing::~Routing()
{
    if (m_seat.Keyboard() != nullptr)
    {
        m_seat.Keyboard()->default_grab.interface = m_replaced;
    }
}

weston_surface* Routing::HeardBy(const Key& key) const
{
    const auto press = m_pressed.find(&key);
    return press == m_pressed.end() ? nullptr : press->second.Get();
}

void Routing::s_OnKey(weston_keyboard_grab* grab, const timespec* time, uint32_t code, uint32_t state)
{
    Routing& self = *reinterpret_cast<const Hook*>(grab->interface)->self;
    const Key* key = KeyOf(code);
    if (key == nullptr)
    {
        return;
    }
    self.m_seat.KeepKeymap();
    if (state == WL_KEYBOARD_KEY_STATE_PRESSED)
    {
        self.m_KeyDown(time, *key);
    }
    else
    {
        self.m_KeyUp(time, *key);
    }
}

void Routing::m_KeyDown(const timespec* time, const Key& key)
{
    // Two keys of the keyboard can stand for the same key of the remote control.
    const auto [press, isNew] = m_pressed.try_emplace(&key);
    if (!isNew)
    {
        return;
    }
    m_taken.Pressed(key);
    weston_surface* target = m_TargetOf(key);
    press->second.Set(target);
    if (target == nullptr)
    {
        return;
    }
    if (IsOverlay(target))
    {
        // It got a focus event when it appeared. The screen below keeps the real focus, and so looks focused.
        SendUnfocused(m_seat.Keyboard(), time, key, WL_KEYBOARD_KEY_STATE_PRESSED, target);
        return;
    }
    m_LendFocus(target);
    weston_keyboard_send_key(m_seat.Keyboard(), time, key.code, WL_KEYBOARD_KEY_STATE_PRESSED);
}

void Routing::m_KeyUp(const timespec* time, const Key& key)
{
    const auto press = m_pressed.find(&key);
    if (press == m_pressed.end())
    {
        return;
    }
    weston_keyboard* keyboard = m_seat.Keyboard();
    weston_surface* target = press->second.Get();
    if (target != nullptr && target == keyboard->focus)
    {
        weston_keyboard_send_key(keyboard, time, key.code, WL_KEYBOARD_KEY_STATE_RELEASED);
    }
    else if (target != nullptr && target->resource != nullptr)
    {
        SendUnfocused(keyboard, time, key, WL_KEYBOARD_KEY_STATE_RELEASED, target);
    }
    m_pressed.erase(press);
    if (m_pressed.empty())
    {
        m_GiveFocusBack();
    }
}

weston_surface* Routing::m_TargetOf(const Key& key) const
{
    if (weston_surface* exclusive = m_grabs.ExclusiveHolder(key))
    {
        return exclusive;
    }
    weston_surface* topmost = m_windows.Topmost();
    if (topmost != nullptr && m_grabs.Holds(topmost, key, GrabMode::Topmost))
    {
        return topmost;
    }
    if (m_lateDigits.Holds(key, LateDigits::Now()))
    {
        return nullptr;
    }
    const auto registered = [&](weston_surface* window)
    {
        return m_grabs.Holds(window, key, GrabMode::Registered);
    };
    if (weston_surface* registrant = m_windows.Topmost(registered))
    {
        return registrant;
    }
    // A window that its client has shown but not drawn yet.
    if (weston_surface* coming = m_grabs.Holder(key, GrabMode::Registered, weston_surface_is_desktop_surface))
    {
        return coming;
    }
    // No window has the focus while the desktop's own focus is outside the TV's window.
    weston_surface* focus = m_seat.Keyboard()->focus;
    return focus != nullptr ? focus : topmost;
}

/** The toolkit drops a key for a window that does not have the focus. */
void Routing::m_LendFocus(weston_surface* target)
{
    weston_keyboard* keyboard = m_seat.Keyboard();
    if (keyboard->focus == target)
    {
        return;
    }
    if (keyboard->focus == nullptr || keyboard->focus != m_borrower.Get())
    {
        m_lender.Set(keyboard->focus);
    }
    m_borrower.Set(target);
    weston_keyboard_set_focus(keyboard, target);
}

void Routing::m_GiveFocusBack()
{
    weston_keyboard* keyboard = m_seat.Keyboard();
    weston_surface* borrower = m_borrower.Get();
    weston_surface* lender = m_lender.Get();
    m_borrower.Set(nullptr);
    m_lender.Set(nullptr);
    const bool shellMovedIt = keyboard->focus != nullptr && keyboard->focus != borrower;
    if (shellMovedIt)
    {
        return;
    }
    weston_seat* seat = keyboard->seat;
    if (seat->saved_kbd_focus != nullptr)
    {
        // The desktop's focus is outside the TV's window. The compositor has saved which window had the TV's focus, and
        // gives it back when the desktop's focus returns. Until then no window may have it.
        weston_keyboard_set_focus(keyboard, nullptr);
        seat->use_saved_kbd_focus = true;
        return;
    }
    weston_surface* next = lender != nullptr && weston_surface_is_mapped(lender) ? lender : m_windows.Topmost();
    if (next == nullptr && borrower != nullptr && weston_surface_is_desktop_surface(borrower))
    {
        next = borrower; // not drawn yet; it will be the only window
    }
    weston_keyboard_set_focus(keyboard, next);
}

} // namespace veskar
