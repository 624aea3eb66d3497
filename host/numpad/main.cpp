/**
 * The TV's number pad, an application. A screen asks it to show itself ("cmd" = "show", "type" = "number", or
 * "number_zip" for a pad with a backspace key) and to hide ("cmd" = "hide").
 */
#include "CString.h"
#include "Log.h"
#include "PadApplication.h"
#include "SettingKeys.h"
#include "TvBus.h"

#include <app.h>
#include <cstdlib>
#include <ea.h>
#include <string>
#include <ui_orientation.h>

namespace
{

/** Empty when the request has no such text. */
std::string TextOf(app_control_h request, const char* key)
{
    char* value = nullptr;
    if (app_control_get_extra_data(request, key, &value) != APP_CONTROL_ERROR_NONE)
    {
        return "";
    }
    const veskar::CString owned(value);
    return value;
}

bool OnCreate(void* data)
{
    ea_init(); // the theme for the viewer's display modes
    static_cast<veskar::PadApplication*>(data)->Create();
    return true;
}

bool TakesDigitsBack(const std::string& type)
{
    if (type != "number" && type != "number_zip")
    {
        NUMPAD_WARN("there is no pad of the type \"%s\": digits alone are shown", type.c_str());
    }
    return type == "number_zip";
}

void OnRequest(app_control_h request, void* data)
{
    auto& application = *static_cast<veskar::PadApplication*>(data);
    const std::string command = TextOf(request, "cmd");
    if (command == "show")
    {
        // Each time, because the viewer may have chosen another language since the last pad.
        elm_config_mirrored_set(ua_UI_orientation_get() == veskar::RIGHT_TO_LEFT ? EINA_TRUE : EINA_FALSE);
        application.Show(TakesDigitsBack(TextOf(request, "type")));
    }
    else if (command == "hide")
    {
        application.Hide();
    }
    else
    {
        NUMPAD_ERROR("the command \"%s\" is neither show nor hide", command.c_str());
    }
}

void OnTerminate(void* data)
{
    static_cast<veskar::PadApplication*>(data)->Terminate();
}

} // namespace

int main(int argc, char** argv)
{
    setenv("VESKAR_APP_ID", veskar::Applications::NUMBER_PAD, 1); // the framework reads the application's id from it
    veskar::PadApplication application;
    ui_app_lifecycle_callback_s callbacks{};
    callbacks.create = OnCreate;
    callbacks.terminate = OnTerminate;
    callbacks.app_control = OnRequest;
    const int result = ui_app_main(argc, argv, &callbacks, &application);
    return result == APP_ERROR_NONE ? EXIT_SUCCESS : EXIT_FAILURE;
}
