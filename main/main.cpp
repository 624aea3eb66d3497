// The application frame: main, and the platform's callbacks, which reach the window manager and the service processor
// one at a time.

#include "EflGuard.h"
#include "Handles.h"
#include "Log.h"
#include "Orientation.h"
#include "ServiceProcessor.h"
#include "WindowManager.h"

#include <cstdlib>
#include <mutex>
#include <new>

#include <Ecore.h>
#include <Elementary.h>
#include <app.h>
#include <vconf.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* APP_NAME = "org.tizen.veskar-app";
constexpr const char* LANGUAGE_SETTING = "db/menu_widget/language";
constexpr int NO_TEST_CASE = -1;

struct AppData
{
    const char* name;
    void* reserved;
};

// Neither object is ever deleted, because a timer's thread may still use it while the process ends.
WindowManager* windowManager = nullptr;
ServiceProcessor* serviceProcessor = nullptr;
int testCaseId = NO_TEST_CASE;
bool ignorePause = false;

/** Every callback that uses the two objects holds it to its end. Main thread only: no timer waits for it. */
std::mutex operationMutex;

void _languageChanged(app_event_info_h /*eventInfo*/, void* /*data*/)
{
    LOG_ENTRY_INFO();
    const CString language(vconf_get_str(LANGUAGE_SETTING));
    if (language && *language.get() != '\0')
    {
        LOG_INFO("Setting lang set " << language.get());
        EFL_GUARD(elm_language_set, language.get());
    }
    const bool mirrored = IsRightToLeft();
    EFL_GUARD(elm_config_mirrored_set, mirrored ? EINA_TRUE : EINA_FALSE);
    LOG_INFO("Config mirroring set to " << (mirrored ? "EINA_TRUE" : "EINA_FALSE"));
}

// A timer's callback runs with the timer's mutex held, and the main loop takes that mutex to start or cancel the timer.
// If the callback waited for anything that the main loop holds, both would hang. So it only posts the rest to the main
// loop. By then the timer may have been cancelled or started again, so the posted part checks it first.

void FinishIdleTimeout(void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    if (windowManager != nullptr && windowManager->IdleTimeoutExpired())
    {
        windowManager->IdleTimeout();
    }
}

void FinishVisibleTimeout(void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    if (windowManager != nullptr && windowManager->VisibleTimeoutExpired())
    {
        windowManager->VisibleTimeout();
    }
}

void _idle_timeout()
{
    LOG_ENTRY_INFO();
    ecore_main_loop_thread_safe_call_async(FinishIdleTimeout, nullptr);
}

void _visible_timeout()
{
    LOG_ENTRY_INFO();
    ecore_main_loop_thread_safe_call_async(FinishVisibleTimeout, nullptr);
}

bool _create(void* data)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    LOG_ENTRY_INFO();
    if (data == nullptr)
    {
        LOG_ERROR("data null");
        return false;
    }

    EFL_GUARD(elm_config_focus_highlight_enabled_set, EINA_TRUE);
    EFL_GUARD(elm_config_focus_highlight_animate_set, EINA_TRUE);
    EFL_GUARD(elm_policy_set, ELM_POLICY_QUIT, ELM_POLICY_QUIT_NONE);
    // The window that the window manager creates needs the language and the direction.
    _languageChanged(nullptr, nullptr);

    if (ecore_init() == 0) // not guarded, because the guard itself is Ecore's
    {
        LOG_ERROR("Cannot initialize Ecore!");
        return false;
    }
    windowManager = new (std::nothrow) WindowManager(_idle_timeout, _visible_timeout);
    if (windowManager == nullptr)
    {
        LOG_ERROR("failed to create windowManager");
        return false;
    }
    serviceProcessor = new ServiceProcessor(*windowManager);
    if (testCaseId != NO_TEST_CASE)
    {
        windowManager->Test(testCaseId);
    }
    return true;
}

void _service(app_control_h appControl, void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    if (serviceProcessor != nullptr)
    {
        serviceProcessor->HandleService(appControl);
        LOG_INFO("Service complete!");
    }
    ignorePause = true;
}

void _pause(void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    if (ignorePause)
    {
        // Only a resume clears the flag: a screen that is replaced twice causes two pauses.
        LOG_INFO("Ignore pause!");
        return;
    }
    if (windowManager != nullptr)
    {
        windowManager->Pause();
        LOG_INFO("Finishing pause callback!");
    }
}

void _resume(void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    if (windowManager != nullptr)
    {
        windowManager->Resume();
        LOG_INFO("Finishing resume callback!");
    }
    ignorePause = false;
}

void _terminate(void* /*data*/)
{
    const std::lock_guard<std::mutex> lock(operationMutex);
    if (windowManager != nullptr)
    {
        windowManager->Terminate();
        LOG_INFO("Finishing terminate callback!");
    }
}

void ReportLoopResult(int result)
{
    switch (result)
    {
    case APP_ERROR_ALREADY_RUNNING:
        LOG_ERROR("Application is already running error during running main loop");
        break;
    case APP_ERROR_INVALID_PARAMETER:
        LOG_ERROR("Invalid parameter error during running main loop");
        break;
    case APP_ERROR_INVALID_CONTEXT:
        LOG_ERROR("Invalid context error during running main loop");
        break;
    default:
        LOG_INFO("ok");
        break;
    }
}

} // namespace

} // namespace VESKAR_APP

int main(int argc, char** argv)
{
    using namespace VESKAR_APP;

    LOG_ENTRY_ERROR();
    AppData appData{APP_NAME, nullptr};
    if (argc == 2)
    {
        testCaseId = static_cast<int>(std::strtol(argv[1], nullptr, 10));
        LOG_INFO("test case id: " << testCaseId);
    }

    ui_app_lifecycle_callback_s callbacks{};
    callbacks.create = _create;
    callbacks.terminate = _terminate;
    callbacks.pause = _pause;
    callbacks.resume = _resume;
    callbacks.app_control = _service;

    app_event_handler_h languageHandler = nullptr;
    ui_app_add_event_handler(&languageHandler, APP_EVENT_LANGUAGE_CHANGED, _languageChanged, nullptr);

    const int result = ui_app_main(argc, argv, &callbacks, &appData);
    ReportLoopResult(result);
    LOG_INFO("Ending up application");
    return result;
}
