#include "ContextManager.h"

#include "Print.h"

#include <utility>

namespace veskar
{
ContextManager::ContextManager(sdbus::IConnection& connection, TaskRequested taskRequested)
    : m_object(sdbus::createObject(connection, Manager::path))
{
    m_object->registerMethod(Manager::requestTask)
        .onInterface(Manager::interface)
        .withInputParamNames("task", "action")
        .implementedAs(
            [taskRequested = std::move(taskRequested)](const std::string& task, const std::string& action)
            {
                Print(Manager::requestTask + " " + Quoted(task) + " " + Quoted(action));
                taskRequested(task, action);
            });
    m_object->finishRegistration();
}
} // namespace veskar
