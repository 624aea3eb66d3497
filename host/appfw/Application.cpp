#include "Application.h"

#include <Elementary.h>

#include "BusName.h"
#include "Compositor.h"
#include "CoreLimit.h"
#include "Departure.h"
#include "Fonts.h"
#include "HandOver.h"
#include "Log.h"
#include "MainLoop.h"
#include "OwnScreen.h"
#include "SettingKeys.h"
#include "SettingsWatch.h"
#include "Toolkit.h"
#include "TvBus.h"
#include "WindowWatch.h"

namespace veskar
{
namespace
{

// What requests for a screen have, whoever handles them.
constexpr const char* UI_ID_KEY = "ui_param_ui_id";
constexpr const char* SOURCE_ID_KEY = "ui_param_source_id";
constexpr const char* KIND_KEY = "signal_tvservice_key";
constexpr const char* TITLE_KEY = "ui_param_title";

/** True for an id whose name for a leaving process is not too long either. */
bool CanRunAs(const std::string& id)
{
    return IsApplicationId(id.c_str()) && IsApplicationId(Applications::LeavingNameOf(id).c_str());
}

/** Empty in a request without this text. */
std::string TextOf(const app_control_s& request, const char* key)
{
    const auto found = request.data.find(key);
    const auto* text = found == request.data.end() ? nullptr : std::get_if<std::string>(&found->second);
    return text == nullptr ? "" : *text;
}

/** Numbers are read as the application reads them. */
OwnScreen::Request ScreenOf(const app_control_s& request)
{
    return {std::atoi(TextOf(request, UI_ID_KEY).c_str()), std::atoi(TextOf(request, SOURCE_ID_KEY).c_str()),
            TextOf(request, KIND_KEY), TextOf(request, TITLE_KEY)};
}

} // namespace

Application& Application::Instance()
{
    // Never destroyed: event handlers and threads of the application may still use it while the process exits.
    static auto* application = new Application;
    return *application;
}

Application::Application() : m_id(OwnApplicationId()) {}

app_event_handler_h Application::AddEventHandler(const app_event_handler& handler)
{
    return m_eventHandlers.emplace_back(std::make_unique<app_event_handler>(handler)).get();
}

bool Application::Send(BusMessage call, OutgoingCalls::Done done)
{
    return HasBus() && m_outgoing->Send(m_connection.get(), std::move(call), std::move(done));
}

int Application::Run(int argc, char** argv, const ui_app_lifecycle_callback_s& callbacks, void* userData)
{
    WriteNoCoreDump();
    m_callbacks = callbacks;
    m_userData = userData;
    PrepareToolkit();
    const BusLibrary library;
    m_connection.reset(library && CanRunAs(m_id) ? eldbus_connection_get(ELDBUS_CONNECTION_TYPE_SESSION) : nullptr);
    if (!m_connection)
    {
        APPFW_ERROR("%s cannot reach the TV's bus", m_id.c_str());
        return APP_ERROR_INVALID_CONTEXT;
    }
    m_bus = std::make_unique<BusWatch>(m_connection.get());
    m_names = std::make_unique<BusNames>(m_connection.get());
    m_padSetting = std::make_unique<PadSetting>(*m_names);
    m_outgoing = std::make_unique<OutgoingCalls>();
    m_freed = std::make_unique<FreedMemory>();
    m_queue = std::make_unique<LifecycleQueue>([this](LifecycleEvent& event) { m_Deliver(event); });
    // Before the name is requested: a process that the bus started gets its first request before that answer.
    m_object = std::make_unique<ApplicationObject>(
        m_connection.get(), m_id, [this](LifecycleEvent event) { m_queue->AddCall(std::move(event)); });
    m_screen = std::make_unique<ScreenObject>(m_connection.get(), m_id);

    const int result = m_RunOwner(argc, argv);

    m_screen.reset();
    m_object.reset();
    m_queue.reset();
    m_freed.reset();
    m_outgoing.reset();
    m_padSetting.reset();
    m_names.reset();
    m_bus.reset();
    m_connection.reset();
    return result;
}

int Application::m_RunOwner(int argc, char** argv)
{
    OwnName name(m_connection.get(), *m_bus, m_id);
    if (!name.Request())
    {
        return m_bus->IsGone() ? APP_ERROR_INVALID_CONTEXT : APP_ERROR_ALREADY_RUNNING;
    }
    m_queue->PutFirst(TakeOver(m_connection.get(), *m_bus, m_id));
    Departure departure(m_connection.get(), *m_bus, *m_queue, *m_outgoing, m_id);
    if (const auto why = StartToolkit(argc, argv); !why.empty())
    {
        APPFW_ERROR("%s cannot start: %s", m_id.c_str(), why.c_str());
        departure.Refuse(name, why.c_str());
        return APP_ERROR_INVALID_CONTEXT;
    }
    const auto failure = m_Live();
    if (failure.empty())
    {
        departure.HandOver(name);
    }
    else
    {
        APPFW_ERROR("%s ends: %s", m_id.c_str(), failure.c_str());
        departure.Refuse(name, failure.c_str());
    }
    elm_shutdown();
    return failure.empty() ? APP_ERROR_NONE : APP_ERROR_INVALID_CONTEXT;
}

std::string Application::m_Live()
{
    LoadTheme();
    if (m_callbacks.create != nullptr && !m_callbacks.create(m_userData))
    {
        return "the create callback failed";
    }
    // It may have gone since the start, and the toolkit then made no window and will notice nothing.
    auto missing = MissingCompositor();
    if (missing.empty())
    {
        m_RunLoop();
    }
    if (m_callbacks.terminate != nullptr)
    {
        m_callbacks.terminate(m_userData);
    }
    return missing;
}

void Application::m_RunLoop()
{
    const WindowWatch window([this](bool shown)
                             { m_queue->AddWindowEvent(shown ? LifecycleKind::Resume : LifecycleKind::Pause); });
    const FontCheck fonts;
    const SettingsWatch language({LANGUAGE_KEY, ORIENTATION_KEY},
                                 [this] {
                                     m_queue->AddCall({LifecycleKind::LanguageChanged, nullptr, nullptr});
                                 });
    m_queue->Start();
    elm_run();
    m_queue->Stop();
    if (const auto why = LostCompositor(); !why.empty())
    {
        APPFW_ERROR("the compositor is gone: the application ends (%s)", why.c_str());
    }
}

void Application::m_Deliver(LifecycleEvent& event)
{
    const Replies replies(m_connection.get(), *m_bus);
    m_Tell(event);
    replies.Done(event.call.get());
    m_freed->GiveBackSoon(); // a request may have replaced a screen, a pause tells that one was hidden
}

void Application::m_Tell(const LifecycleEvent& event)
{
    const auto call = [this](void (*callback)(void*))
    {
        if (callback != nullptr)
        {
            callback(m_userData);
        }
    };
    switch (event.kind)
    {
    case LifecycleKind::Request:
        if (m_callbacks.app_control != nullptr)
        {
            OwnScreen::Instance().NoteRequest(ScreenOf(*event.request));
            m_callbacks.app_control(event.request.get(), m_userData);
        }
        break;
    case LifecycleKind::Pause:
        call(m_callbacks.pause);
        break;
    case LifecycleKind::Resume:
        call(m_callbacks.resume);
        break;
    case LifecycleKind::LanguageChanged:
        m_TellLanguageChanged();
        break;
    case LifecycleKind::Terminate:
        elm_exit();
        break;
    }
}

void Application::m_TellLanguageChanged()
{
    app_event_info info = {APP_EVENT_LANGUAGE_CHANGED};
    // By index, because a callback may add a handler.
    for (size_t i = 0; i < m_eventHandlers.size(); ++i)
    {
        const auto& handler = *m_eventHandlers[i];
        if (handler.type == info.type)
        {
            handler.callback(&info, handler.userData);
        }
    }
}

} // namespace veskar
