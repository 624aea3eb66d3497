/** The TV's context manager. It is asked to stop tasks, and only prints that. */
#pragma once

#include "DeskBus.h"

#include <functional>
#include <memory>

namespace veskar
{
class ContextManager
{
public:
    using TaskRequested = std::function<void(const std::string& task, const std::string& action)>;

    ContextManager(sdbus::IConnection& connection, TaskRequested taskRequested);

private:
    std::unique_ptr<sdbus::IObject> m_object;
};

} // namespace veskar
