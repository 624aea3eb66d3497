#pragma once

#include "DeskBus.h"
#include "Process.h"

#include <deque>
#include <functional>
#include <memory>

/**
 * Takes the application's place on the bus and does with a request what a test says. It handles requests only inside
 * `Take` and `HandleSent`, so that nothing happens that the test did not ask for.
 */
class FakeApplication
{
public:
    FakeApplication();

    /** Handles requests until one more was taken, and returns it. The sender has got its reply by then. */
    veskar::RequestData Take();
    /** Handles what the daemon has sent until now, if anything; `Take` still returns it. */
    void HandleSent();
    /** The next request runs this before its reply; if it throws an sdbus::Error, that is the reply. */
    void WhileHandling(std::function<void()> action) { m_whileHandling = std::move(action); }

    void Answer(int uiId, int sourceId, int kind, int button = 0, int item = 0, const std::string& data = "");
    void AskForTask(const std::string& task, const std::string& action);
    void OpenMenuPosition(int position);

    /** Between these two it owns the name. */
    void Arrive() { m_bus->requestName(veskar::Applications::DIALOGUES); }
    void Leave() { m_bus->releaseName(veskar::Applications::DIALOGUES); }

private:
    void m_Handle(const veskar::RequestData& request);

    std::unique_ptr<sdbus::IConnection> m_bus;
    std::unique_ptr<sdbus::IProxy> m_middleware;
    std::unique_ptr<sdbus::IProxy> m_contextManager;
    std::unique_ptr<sdbus::IObject> m_object;
    std::function<void()> m_whileHandling;
    std::deque<veskar::RequestData> m_taken;
};
