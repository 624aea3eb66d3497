/** The context manager, as a peer on the bus. */
#include <app_context_manager.h>

#include "Application.h"
#include "BusName.h"
#include "TvBus.h"

namespace
{

constexpr int InvalidParameter = -22;
constexpr int Failed = -1;

} // namespace

int app_context_manager_request_task(const char* task, const char* action)
{
    using namespace veskar;
    if (task == nullptr || action == nullptr || !IsBusText(task) || !IsBusText(action))
    {
        return InvalidParameter;
    }
    auto call = NewCall(Manager::busName, Manager::path, Manager::interface, Manager::requestTask);
    eldbus_message_arguments_append(call.get(), "ss", task, action);
    const auto report = [](const Eldbus_Message* reply)
    {
        LogRefusal(reply, "the context manager");
    };
    return Application::Instance().Send(std::move(call), report) ? 0 : Failed;
}
