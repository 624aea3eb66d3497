#include "ContextManager.h"

#include "Print.h"

#include <utility>

namespace veskar
{
ContextManager::ContextManager(sdbus::IConnection& connection, TaskRequested taskRequested)
    : m_object(sdbus::createObject(connection, PathOf(Manager::BUS_NAME)))
{
    m_object->registerMethod(Manager::REQUEST_TASK)
        .onInterface(Manager::INTERFACE)
        .withInputParamNames("task", "action")
        .implementedAs(
            [taskRequested = std::move(taskRequested)](const std::string& task, const std::string& action)
            {
                Print(std::string(Manager::REQUEST_TASK) + " " + Quoted(task) + " " + Quoted(action));
                taskRequested(task, action);
            });
    m_object->finishRegistration();
}

} // namespace veskar
