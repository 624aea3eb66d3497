/** The context manager, as a peer on the bus. */
#include <app_context_manager.h>

#include "Application.h"
#include "BusName.h"
#include "TvBus.h"

namespace
{

constexpr int INVALID_PARAMETER = -22;
constexpr int FAILED = -1;

} // namespace

int app_context_manager_request_task(const char* task, const char* action)
{
    using namespace veskar;
    if (task == nullptr || action == nullptr || !IsBusText(task) || !IsBusText(action))
    {
        return INVALID_PARAMETER;
    }
    auto call = NewCall(Manager::BUS_NAME, PathOf(Manager::BUS_NAME), Manager::INTERFACE, Manager::REQUEST_TASK);
    eldbus_message_arguments_append(call.get(), "ss", task, action);
    const auto report = [](const Eldbus_Message* reply)
    {
        LogRefusal(reply, "the context manager");
    };
    return Application::Instance().Send(std::move(call), report) ? 0 : FAILED;
}
