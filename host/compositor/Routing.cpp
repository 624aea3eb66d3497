#include "Routing.h"

#include "DeskKeyboard.h"
#include "Unfocused.h"

namespace veskar
{

namespace
{

const Key* keyOf(uint32_t code)
{
    const Key* injected = keyByCode(code);
    return injected != nullptr ? injected : deskKey(code);
}

void ignoreModifiers(weston_keyboard_grab*, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t) {}

void ignoreCancel(weston_keyboard_grab*) {}

} // namespace

Routing::Routing(Seat& seat, const GrabTable& grabs, const WindowStack& windows)
    : m_seat(seat), m_grabs(grabs), m_windows(windows), m_hook{{onKey, ignoreModifiers, ignoreCancel}, this},
      m_replaced(seat.keyboard()->default_grab.interface)
{
    m_seat.keyboard()->default_grab.interface = &m_hook.handlers;
}

Routing::~Routing()
{
    if (m_seat.keyboard() != nullptr)
    {
        m_seat.keyboard()->default_grab.interface = m_replaced;
    }
}

void Routing::onKey(weston_keyboard_grab* grab, const timespec* time, uint32_t code, uint32_t state)
{
    Routing& self = *reinterpret_cast<const Hook*>(grab->interface)->self;
    const Key* key = keyOf(code);
    if (key == nullptr)
    {
        return;
    }
    self.m_seat.keepKeymap();
    if (state == WL_KEYBOARD_KEY_STATE_PRESSED)
    {
        self.keyDown(time, *key);
    }
    else
    {
        self.keyUp(time, *key);
    }
}

void Routing::keyDown(const timespec* time, const Key& key)
{
    // Two typed keys can stand for the same key of the remote.
    const auto [press, isNew] = m_pressed.try_emplace(&key);
    if (!isNew)
    {
        return;
    }
    weston_surface* target = targetOf(key);
    press->second.set(target);
    if (target == nullptr)
    {
        return;
    }
    if (isOverlay(target))
    {
        // It was told of the focus when it appeared, and the screen below shows that it really has it.
        sendUnfocused(m_seat.keyboard(), time, key, WL_KEYBOARD_KEY_STATE_PRESSED, target);
        return;
    }
    lendFocus(target);
    weston_keyboard_send_key(m_seat.keyboard(), time, key.code, WL_KEYBOARD_KEY_STATE_PRESSED);
}

void Routing::keyUp(const timespec* time, const Key& key)
{
    const auto press = m_pressed.find(&key);
    if (press == m_pressed.end())
    {
        return;
    }
    weston_keyboard* keyboard = m_seat.keyboard();
    weston_surface* target = press->second.get();
    if (target != nullptr && target == keyboard->focus)
    {
        weston_keyboard_send_key(keyboard, time, key.code, WL_KEYBOARD_KEY_STATE_RELEASED);
    }
    else if (target != nullptr && target->resource != nullptr)
    {
        sendUnfocused(keyboard, time, key, WL_KEYBOARD_KEY_STATE_RELEASED, target);
    }
    m_pressed.erase(press);
    if (m_pressed.empty())
    {
        giveFocusBack();
    }
}

weston_surface* Routing::targetOf(const Key& key) const
{
    if (weston_surface* exclusive = m_grabs.exclusiveHolder(key))
    {
        return exclusive;
    }
    weston_surface* topmost = m_windows.topmost();
    if (topmost != nullptr && m_grabs.holds(topmost, key, GrabMode::Topmost))
    {
        return topmost;
    }
    const auto registered = [&](weston_surface* window)
    {
        return m_grabs.holds(window, key, GrabMode::Registered);
    };
    if (weston_surface* registrant = m_windows.topmost(registered))
    {
        return registrant;
    }
    // Its client has shown it, and its first picture is on the way.
    if (weston_surface* coming = m_grabs.holder(key, GrabMode::Registered, weston_surface_is_desktop_surface))
    {
        return coming;
    }
    // Nobody has the focus while the desktop's own focus is outside the TV's window.
    weston_surface* focus = m_seat.keyboard()->focus;
    return focus != nullptr ? focus : topmost;
}

/** The toolkit drops a key that comes to a window without the focus. */
void Routing::lendFocus(weston_surface* target)
{
    weston_keyboard* keyboard = m_seat.keyboard();
    if (keyboard->focus == target)
    {
        return;
    }
    if (keyboard->focus == nullptr || keyboard->focus != m_borrower.get())
    {
        m_lender.set(keyboard->focus);
    }
    m_borrower.set(target);
    weston_keyboard_set_focus(keyboard, target);
}

void Routing::giveFocusBack()
{
    weston_keyboard* keyboard = m_seat.keyboard();
    weston_surface* borrower = m_borrower.get();
    weston_surface* lender = m_lender.get();
    m_borrower.set(nullptr);
    m_lender.set(nullptr);
    const bool shellMovedIt = keyboard->focus != nullptr && keyboard->focus != borrower;
    if (shellMovedIt)
    {
        return;
    }
    weston_seat* seat = keyboard->seat;
    if (seat->saved_kbd_focus != nullptr)
    {
        // The desktop's focus is outside the TV's window. The compositor remembers whose ours was, and must not find
        // anyone with it when the desktop's comes back or goes away once more.
        weston_keyboard_set_focus(keyboard, nullptr);
        seat->use_saved_kbd_focus = true;
        return;
    }
    weston_surface* next = lender != nullptr && weston_surface_is_mapped(lender) ? lender : m_windows.topmost();
    if (next == nullptr && borrower != nullptr && weston_surface_is_desktop_surface(borrower))
    {
        next = borrower; // it will be drawn, and be the only one
    }
    weston_keyboard_set_focus(keyboard, next);
}

} // namespace veskar
