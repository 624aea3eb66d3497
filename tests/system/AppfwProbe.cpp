// An application that logs each callback it gets, and does what a request's value "do" says.

#include <app.h>
#include <dlog.h>

#include <Ecore_Evas.h>
#include <Elementary.h>
#include <IVesKarController.h>

#include <chrono>
#include <cstdlib>
#include <list>
#include <memory>
#include <string>
#include <thread>

namespace
{

Evas_Object* s_window = nullptr;
bool s_sendAtTheEnd = false;

void Tell(const std::string& text)
{
    __dlog_print(LOG_ID_MAIN, DLOG_INFO, "PROBE", "%s", text.c_str());
}

std::string Value(app_control_h request, const char* key)
{
    char* value = nullptr;
    app_control_get_extra_data(request, key, &value);
    const std::unique_ptr<char, decltype(&free)> owner(value, free);
    return value == nullptr ? "" : value;
}

void Launch(const char* appId)
{
    app_control_h request = nullptr;
    app_control_create(&request);
    app_control_set_app_id(request, appId);
    app_control_add_extra_data(request, "name", "from another");
    Tell("launch " + std::to_string(app_control_send_launch_request(request, nullptr, nullptr)));
    app_control_destroy(request);
}

void TellLeaving(Ecore_Evas* /*canvas*/)
{
    Tell("off the screen");
}

/** Calls `leaving` when the compositor takes the window off the screen. */
void WatchScreen(void (*leaving)(Ecore_Evas* canvas))
{
    ecore_evas_callback_hide_set(ecore_evas_ecore_evas_get(evas_object_evas_get(s_window)), leaving);
}

/** As a large screen does: takes much for a moment, and leaves something small everywhere in it. */
void FillMemory()
{
    static std::list<std::string> kept;
    std::list<std::string> blocks(100'000, std::string(1000, 'x'));
    auto block = blocks.begin();
    for (int i = 0; i < 100; ++i)
    {
        kept.splice(kept.end(), blocks, block++);
        std::advance(block, 900);
    }
}

bool Create(void*)
{
    Tell("create");
    elm_policy_set(ELM_POLICY_QUIT, ELM_POLICY_QUIT_NONE);
    if (getenv("PROBE_LOSES_COMPOSITOR") != nullptr)
    {
        setenv("WAYLAND_DISPLAY", "gone", 1);
    }
    s_window = elm_win_add(nullptr, "probe", ELM_WIN_DIALOG_BASIC);
    evas_object_show(s_window);
    return getenv("PROBE_CREATE_FAILS") == nullptr;
}

void Terminate(void*)
{
    Tell("terminate");
    // What happens to the window is not logged from here on.
    WatchScreen(nullptr);
    evas_object_hide(s_window);
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    if (s_sendAtTheEnd)
    {
        Launch("org.tizen.slow");
        auto* controller = VESKAR_API::IVesKarController::Instance();
        Tell("answer " + std::to_string(controller->SendResponse(-7, 254, 3, 1, 255, "Ünï\n")));
        Tell("no text " + std::to_string(controller->SendResponse(8, 255, 0, 0, 0, "\xff\xfe") ||
                                         controller->SendResponse(8, 255, 0, 0, 0, std::string("1\0002", 3))));
    }
}

void Request(app_control_h request, void*)
{
    Tell("request " + Value(request, "name"));
    WatchScreen(TellLeaving);
    const std::string action = Value(request, "do");
    if (action == "hide" || action == "replace")
    {
        evas_object_hide(s_window);
    }
    if (action == "show" || action == "replace")
    {
        evas_object_show(s_window);
    }
    if (action == "launch nobody")
    {
        Launch("org.tizen.nobody");
    }
    if (action == "end")
    {
        // Longer than in a real application, because a request is lost most easily in this moment.
        elm_exit();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    if (action == "fill memory")
    {
        FillMemory();
    }
    s_sendAtTheEnd = s_sendAtTheEnd || action == "send at the end";
}

} // namespace

int main(int argc, char** argv)
{
    ui_app_lifecycle_callback_s callbacks = {Create, Terminate, [](void*) { Tell("pause"); },
                                             [](void*) { Tell("resume"); }, Request};
    return ui_app_main(argc, argv, &callbacks, nullptr);
}
