/** The application framework's C interface. */
#include <app.h>

#include "Application.h"

int ui_app_main(int argc, char** argv, ui_app_lifecycle_callback_s* callbacks, void* userData)
{
    if (callbacks == nullptr || argc < 1 || argv == nullptr)
    {
        return APP_ERROR_INVALID_PARAMETER;
    }
    return veskar::Application::Instance().Run(argc, argv, *callbacks, userData);
}

int ui_app_add_event_handler(app_event_handler_h* handler, app_event_type_e type, app_event_cb callback, void* userData)
{
    if (handler == nullptr || callback == nullptr || type < APP_EVENT_LOW_MEMORY || type > APP_EVENT_LANGUAGE_CHANGED)
    {
        return APP_ERROR_INVALID_PARAMETER;
    }
    *handler = veskar::Application::Instance().AddEventHandler({type, callback, userData});
    return APP_ERROR_NONE;
}
