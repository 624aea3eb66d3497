/** The context manager, as a peer on the bus. */
#include <app_context_manager.h>

#include "Application.h"
#include "BusName.h"
#include "Log.h"

namespace
{

constexpr int InvalidParameter = -22;
constexpr int Failed = -1;

void ReportFailure(const Eldbus_Message* reply)
{
    const char* name = nullptr;
    const char* text = nullptr;
    if (eldbus_message_error_get(reply, &name, &text))
    {
        APPFW_ERROR("the context manager did not take the request: %s", text);
    }
}

} // namespace

int app_context_manager_request_task(const char* task, const char* action)
{
    if (task == nullptr || action == nullptr || !veskar::IsBusText(task) || !veskar::IsBusText(action))
    {
        return InvalidParameter;
    }
    veskar::BusMessage call(eldbus_message_method_call_new("org.tizen.context-manager", "/org/tizen/context_manager",
                                                           "org.tizen.ContextManager1", "RequestTask"));
    eldbus_message_arguments_append(call.get(), "ss", task, action);
    return veskar::Application::Instance().Send(std::move(call), ReportFailure) ? 0 : Failed;
}
