#include "Seat.h"

#include "weston/Outputs.h"

#include <stdexcept>

namespace veskar
{

namespace
{

weston_seat* FirstSeat(weston_compositor* compositor)
{
    weston_seat* seat;
    wl_list_for_each(seat, &compositor->seat_list, link)
    {
        return seat;
    }
    return nullptr;
}

/**
 * The pointer of a window is told where it is before the first picture, from which on the compositor knows how to
 * compute that. A place that is no number would stay one: the window's backend moves the pointer by differences.
 */
void PreparePointer(weston_compositor* compositor)
{
    if (weston_output* output = FirstOutput(compositor))
    {
        weston_matrix_init(&output->inverse_matrix);
    }
}

xkb_keymap* CompileKeymap(xkb_context* context)
{
    xkb_keymap* keymap = xkb_keymap_new_from_string(context, KeymapText().c_str(), XKB_KEYMAP_FORMAT_TEXT_V1,
                                                    XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (keymap == nullptr)
    {
        throw std::runtime_error("the remote control's keymap does not compile");
    }
    return keymap;
}

} // namespace

Seat::Seat(weston_compositor* compositor)
    : m_keymap(CompileKeymap(compositor->xkb_context)), m_seat(FirstSeat(compositor))
{
    if (m_seat == nullptr)
    {
        m_own = std::make_unique<weston_seat>();
        m_seat = m_own.get();
        weston_seat_init(m_seat, compositor, "default"); // the name by which the toolkit looks for its first seat
    }
    if (Keyboard() == nullptr && weston_seat_init_keyboard(m_seat, m_keymap.get()) < 0)
    {
        throw std::runtime_error("the seat takes no keyboard");
    }
    m_gone = std::make_unique<Listener>(m_seat->destroy_signal,
                                        [this](void*)
                                        {
                                            m_seat = nullptr;
                                            m_gone.reset();
                                        });
    KeepKeymap();
    PreparePointer(compositor);
}

Seat::~Seat()
{
    m_gone.reset();
    if (m_own)
    {
        weston_seat_release(m_own.get());
    }
}

weston_keyboard* Seat::Keyboard() const
{
    return m_seat == nullptr ? nullptr : m_seat->keyboard_state;
}

void Seat::KeepKeymap()
{
    weston_keyboard* board = Keyboard();
    if (board == nullptr || board->xkb_info->keymap == m_keymap.get())
    {
        return;
    }
    // The compositor delays a new keymap while keys are down, and would read the current key with the wrong one.
    const size_t pressed = board->keys.size;
    board->keys.size = 0;
    weston_seat_update_keymap(m_seat, m_keymap.get());
    board->keys.size = pressed;
}

void Seat::Inject(const Key& key, wl_keyboard_key_state state)
{
    if (Keyboard() == nullptr)
    {
        return;
    }
    KeepKeymap();
    timespec now{};
    weston_compositor_get_time(&now);
    notify_key(m_seat, &now, key.code, state, STATE_UPDATE_NONE);
}

} // namespace veskar
