#include "FakeApplication.h"

#include "ServeOnce.h"

#include <stdexcept>
#include <utility>

using namespace veskar;

FakeApplication::FakeApplication()
    : m_bus(sdbus::createSessionBusConnection()),
      m_middleware(sdbus::createProxy(*m_bus, Controller::BUS_NAME, PathOf(Controller::BUS_NAME))),
      m_contextManager(sdbus::createProxy(*m_bus, Manager::BUS_NAME, PathOf(Manager::BUS_NAME))),
      m_object(sdbus::createObject(*m_bus, PathOf(Applications::DIALOGUES)))
{
    m_object->registerMethod(Applications::APP_CONTROL)
        .onInterface(Applications::INTERFACE)
        .implementedAs([this](const RequestData& request) { m_Handle(request); });
    m_object->finishRegistration();
}

RequestData FakeApplication::Take()
{
    const auto deadline = Clock::now() + PATIENCE;
    while (m_taken.empty())
    {
        if (!ServeOnce(*m_bus, deadline))
        {
            throw std::runtime_error("no request came");
        }
    }
    RequestData request = std::move(m_taken.front());
    m_taken.pop_front();
    return request;
}

void FakeApplication::HandleSent()
{
    // The reply is sent after it.
    m_middleware->callMethod("Ping").onInterface("org.freedesktop.DBus.Peer");
    while (m_bus->processPendingRequest())
    {
    }
}

void FakeApplication::m_Handle(const RequestData& request)
{
    m_taken.push_back(request);
    if (const auto action = std::exchange(m_whileHandling, nullptr))
    {
        action();
    }
}

void FakeApplication::Answer(int uiId, int sourceId, int kind, int button, int item, const std::string& data)
{
    m_middleware->callMethod(Controller::SEND_RESPONSE)
        .onInterface(Controller::INTERFACE)
        .withArguments(std::int32_t{uiId}, static_cast<std::uint8_t>(sourceId), std::int32_t{kind},
                       static_cast<std::uint8_t>(button), static_cast<std::uint8_t>(item), data)
        .dontExpectReply();
}

void FakeApplication::AskForTask(const std::string& task, const std::string& action)
{
    m_contextManager->callMethod(Manager::REQUEST_TASK)
        .onInterface(Manager::INTERFACE)
        .withArguments(task, action)
        .dontExpectReply();
}

void FakeApplication::OpenMenuPosition(int position)
{
    m_middleware->callMethod(Controller::OPEN_MENU_POSITION)
        .onInterface(Controller::INTERFACE)
        .withArguments(std::int32_t{position})
        .dontExpectReply();
}
