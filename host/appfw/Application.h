/** The running application: its name on the bus, its lifecycle and its callbacks. */
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <app.h>

#include "ApplicationObject.h"
#include "Bus.h"
#include "BusNames.h"
#include "BusWatch.h"
#include "FreedMemory.h"
#include "LifecycleQueue.h"
#include "OutgoingCalls.h"
#include "OwnName.h"
#include "PadSetting.h"
#include "ScreenObject.h"

/** The objects behind the platform's handles. */
struct app_event_handler
{
    app_event_type_e type;
    app_event_cb callback;
    void* userData;
};

struct app_event_info
{
    app_event_type_e type;
};

namespace veskar
{

/** The only application of the process. Main thread only. */
class Application
{
public:
    static Application& Instance();

    /** As ui_app_main; the callback record must not be null. */
    int Run(int argc, char** argv, const ui_app_lifecycle_callback_s& callbacks, void* userData);

    /** The handler exists as long as the application. */
    app_event_handler_h AddEventHandler(const app_event_handler& handler);

    /** True from the start of Run to its end, unless the bus ends before. */
    bool HasBus() const { return m_outgoing && !m_bus->IsGone(); }

    /** Sends a call without waiting. The process does not end before the other side has it. False without a bus. */
    bool Send(BusMessage call, OutgoingCalls::Done done);

    /** Both answer from what is known already, without waiting. False without a bus. */
    bool IsRunning(const std::string& appId) const { return m_names && m_names->HasOwner(appId); }
    bool CanReach(const std::string& appId) const { return m_names && m_names->IsReachable(appId); }

private:
    Application();
    ~Application() = default;

    int m_RunOwner(int argc, char** argv);
    /** Returns why it could not live, or nothing. */
    std::string m_Live();
    void m_RunLoop();

    void m_Deliver(LifecycleEvent& event);
    void m_Tell(const LifecycleEvent& event);
    void m_TellLanguageChanged();

    const std::string m_id;
    ui_app_lifecycle_callback_s m_callbacks = {};
    void* m_userData = nullptr;
    std::vector<std::unique_ptr<app_event_handler>> m_eventHandlers;

    // These exist during Run. Each may use those above it.
    BusConnection m_connection;
    std::unique_ptr<BusWatch> m_bus;
    std::unique_ptr<BusNames> m_names;
    std::unique_ptr<PadSetting> m_padSetting;
    std::unique_ptr<OutgoingCalls> m_outgoing;
    std::unique_ptr<FreedMemory> m_freed;
    std::unique_ptr<LifecycleQueue> m_queue;
    std::unique_ptr<ApplicationObject> m_object;
    std::unique_ptr<ScreenObject> m_screen;
};

} // namespace veskar
