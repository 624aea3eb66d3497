/** The application framework: one UI application's life, driven by the platform. Callbacks run on the main thread. */
#pragma once

#include <stdbool.h>

#include "app_control.h"

#ifdef __cplusplus
extern "C"
{
#endif

    typedef enum
    {
        APP_ERROR_NONE = 0,
        APP_ERROR_INVALID_PARAMETER = -22,
        APP_ERROR_INVALID_CONTEXT = (int)0xFEF00001,
        APP_ERROR_ALREADY_RUNNING = -114
    } app_error_e;

    typedef enum
    {
        APP_EVENT_LOW_MEMORY = 0,
        APP_EVENT_LOW_BATTERY = 1,
        APP_EVENT_LANGUAGE_CHANGED = 2
    } app_event_type_e;

    /** Owned by the framework; lives until the loop has ended. */
    typedef struct app_event_handler* app_event_handler_h;
    /** Valid inside the callback that receives it. */
    typedef struct app_event_info* app_event_info_h;

    typedef void (*app_event_cb)(app_event_info_h info, void* userData);

    /** False ends the application before its first request. */
    typedef bool (*app_create_cb)(void* userData);
    typedef void (*app_terminate_cb)(void* userData);
    typedef void (*app_pause_cb)(void* userData);
    typedef void (*app_resume_cb)(void* userData);
    /** The request stays the framework's and is valid inside the callback. */
    typedef void (*app_control_cb)(app_control_h request, void* userData);

    typedef struct
    {
        app_create_cb create;
        app_terminate_cb terminate;
        app_pause_cb pause;
        app_resume_cb resume;
        app_control_cb app_control;
    } ui_app_lifecycle_callback_s;

    /**
     * Runs the application until its main loop ends. Returns APP_ERROR_NONE, or APP_ERROR_INVALID_PARAMETER for a
     * missing callback record, APP_ERROR_INVALID_CONTEXT where the platform cannot be reached or create fails, and
     * APP_ERROR_ALREADY_RUNNING when another instance owns the application's name (nothing is drawn then).
     */
    int ui_app_main(int argc, char** argv, ui_app_lifecycle_callback_s* callbacks, void* userData);

    /** Adds a handler for one kind of event; may be called before ui_app_main. */
    int ui_app_add_event_handler(app_event_handler_h* handler, app_event_type_e type, app_event_cb callback,
                                 void* userData);

#ifdef __cplusplus
}
#endif
