/**
 * The few calls of the toolkit's Wayland library that are needed, declared here because its own header is no valid
 * C++. `ecore_wl2_sync` is the platform's addition.
 */
#pragma once

#include <Ecore_Evas.h>

struct wl_display;
struct wl_registry;
struct wl_seat;
struct wl_surface;

#ifdef __cplusplus
extern "C"
{
#endif

    typedef struct _Ecore_Wl2_Display Ecore_Wl2_Display;
    typedef struct _Ecore_Wl2_Input Ecore_Wl2_Input;

    /** One object that the compositor advertises; the layout is the toolkit's. */
    typedef struct _Ecore_Wl2_Global
    {
        const char* interface;
        unsigned int id;
        unsigned int version;
        Ecore_Wl2_Display* display;
    } Ecore_Wl2_Global;

    Ecore_Wl2_Display* ecore_wl2_connected_display_get(const char* name);
    struct wl_display* ecore_wl2_display_get(Ecore_Wl2_Display* display);
    struct wl_registry* ecore_wl2_display_registry_get(Ecore_Wl2_Display* display);
    Eina_Iterator* ecore_wl2_display_globals_get(Ecore_Wl2_Display* display);
    Ecore_Wl2_Input* ecore_wl2_input_default_input_get(const Ecore_Wl2_Display* display);
    struct wl_seat* ecore_wl2_input_seat_get(Ecore_Wl2_Input* input);
    struct wl_surface* ecore_wl2_window_surface_get(Ecore_Wl2_Window* window);

    /** Waits until the compositor has handled every request made so far. */
    void ecore_wl2_sync(void);

#ifdef __cplusplus
}
#endif
