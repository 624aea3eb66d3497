/**
 * The compositor's C headers, as one C++ header, and the functions that its library exports without declaring them in
 * any packaged header.
 */
#pragma once

extern "C"
{
#include <libweston-desktop/libweston-desktop.h>
#include <libweston/libweston.h>

    void weston_seat_init(weston_seat* seat, weston_compositor* compositor, const char* name);
    int weston_seat_init_keyboard(weston_seat* seat, xkb_keymap* keymap);
    void weston_seat_release(weston_seat* seat);
    void weston_seat_update_keymap(weston_seat* seat, xkb_keymap* keymap);
    void notify_key(weston_seat* seat, const timespec* time, uint32_t key, wl_keyboard_key_state state,
                    weston_key_state_update update);
    void weston_output_damage(weston_output* output);
    void weston_output_disable_planes_incr(weston_output* output);
    void weston_output_disable_planes_decr(weston_output* output);
}
