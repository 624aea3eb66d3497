/** Requests to the TV's other applications, and whether they run. */
#include <app_control.h>
#include <aul.h>

#include <string>

#include "AppControlCodec.h"
#include "Application.h"
#include "BusName.h"

namespace
{

/** Tells the sender, if it wants to know, how its request ended. */
void Report(const std::string& appId, const Eldbus_Message* reply, app_control_reply_cb callback, void* userData)
{
    const bool failed = veskar::LogRefusal(reply, appId);
    if (callback != nullptr)
    {
        app_control_s request = {appId, {}};
        app_control_s answer;
        callback(&request, &answer, failed ? APP_CONTROL_RESULT_FAILED : APP_CONTROL_RESULT_SUCCEEDED, userData);
    }
}

} // namespace

int app_control_send_launch_request(app_control_h request, app_control_reply_cb callback, void* userData)
{
    if (request == nullptr || request->appId.empty())
    {
        return APP_CONTROL_ERROR_INVALID_PARAMETER;
    }
    const auto appId = request->appId;
    if (!veskar::IsApplicationId(appId.c_str()) || !veskar::Application::Instance().CanReach(appId))
    {
        return APP_CONTROL_ERROR_APP_NOT_FOUND;
    }
    auto call = veskar::EncodeAppControl(appId, appId, *request);
    const auto report = [appId, callback, userData](const Eldbus_Message* reply)
    {
        Report(appId, reply, callback, userData);
    };
    const bool sent = call && veskar::Application::Instance().Send(std::move(call), report);
    return sent ? APP_CONTROL_ERROR_NONE : APP_CONTROL_ERROR_LAUNCH_REJECTED;
}

int aul_app_is_running(const char* appId)
{
    return veskar::IsApplicationId(appId) && veskar::Application::Instance().IsRunning(appId) ? 1 : 0;
}
