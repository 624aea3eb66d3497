#include "RouterBinding.h"

#include "Connection.h"
#include "tizen-keyrouter-client-protocol.h"

#include <key_router.h>
#include <optional>
#include <stdexcept>
#include <wayland-client-protocol.h>

namespace veskar
{

namespace
{

/** Exclusive and topmost are two strengths of one grab. A registration is independent of it. */
std::optional<int> OtherStrengthOf(int mode)
{
    switch (mode)
    {
    case KEYROUTER_MODE_EXCLUSIVE:
        return KEYROUTER_MODE_TOPMOST;
    case KEYROUTER_MODE_TOPMOST:
        return KEYROUTER_MODE_EXCLUSIVE;
    default:
        return std::nullopt;
    }
}

tizen_keyrouter* BindOn(wl_event_queue* queue, wl_registry* registry, uint32_t globalName)
{
    // An object that is created through the wrapper starts on `queue`, so none of its events reaches the toolkit's.
    auto* wrapper = static_cast<wl_registry*>(wl_proxy_create_wrapper(registry));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue);
    void* router = wl_registry_bind(wrapper, globalName, &tizen_keyrouter_interface, 1);
    wl_proxy_wrapper_destroy(wrapper);
    return static_cast<tizen_keyrouter*>(router);
}

} // namespace

void RouterBinding::QueueDelete::operator()(wl_event_queue* queue) const
{
    wl_event_queue_destroy(queue);
}

RouterBinding::RouterBinding(wl_display* display, wl_registry* registry, uint32_t globalName)
    : m_display(display), m_queue(wl_display_create_queue(display)),
      m_router(BindOn(m_queue.get(), registry, globalName)),
      m_gate([this](uint32_t code, bool taken) { m_Tell(code, taken); })
{
    static const tizen_keyrouter_listener listener = {s_OnKey, s_OnGrabbed};
    tizen_keyrouter_add_listener(m_router, &listener, this);
    if (!RoundTrip(m_display, m_queue.get()))
    {
        tizen_keyrouter_destroy(m_router);
        throw std::runtime_error("the compositor does not answer");
    }
    OwnScreen::Instance().SetDisplay(this);
}

RouterBinding::~RouterBinding()
{
    OwnScreen::Instance().SetDisplay(nullptr);
    m_AwaitNothing();
    tizen_keyrouter_destroy(m_router);
    wl_display_flush(m_display);
}

void RouterBinding::m_Tell(uint32_t code, bool taken)
{
    // Sent together with what the key does to the screen.
    tizen_keyrouter_heard(m_router, code, taken ? 1 : 0);
    FlushSoon(m_display);
}

void RouterBinding::Changed(bool shown, int uiId)
{
    // The toolkit deletes the last screen on its way out, when there may be nobody to tell.
    if (IsStillConnected(m_display))
    {
        tizen_keyrouter_screen(m_router, shown ? 1 : 0, uiId);
        FlushSoon(m_display);
    }
}

std::set<std::string> RouterBinding::HeldKeys() const
{
    std::set<std::string> names;
    for (const auto& [surface, name, mode] : m_held)
    {
        names.insert(name);
    }
    return names;
}

bool RouterBinding::Grab(wl_surface* surface, const _KeyList& list)
{
    m_refused = false;
    for (int i = 0; i < list.count; ++i)
    {
        const Holding wanted{surface, list.keys[i].name, list.keys[i].mode};
        if (!m_Holds(wanted))
        {
            tizen_keyrouter_grab(m_router, surface, list.keys[i].name, static_cast<uint32_t>(list.keys[i].mode));
            m_asked.push_back(wanted);
        }
    }
    const bool answered = m_asked.empty() || RoundTrip(m_display, m_queue.get());
    m_asked.clear();
    return answered && !m_refused;
}

bool RouterBinding::Ungrab(wl_surface* surface, const _KeyList& list)
{
    const size_t heldBefore = m_held.size();
    bool allReleased = true;
    for (int i = 0; i < list.count; ++i)
    {
        allReleased = m_Release({surface, list.keys[i].name, list.keys[i].mode}) && allReleased;
    }
    if (m_held.size() != heldBefore)
    {
        // Most of them are grabbed again immediately. Sent together, they are never without a holder in between.
        FlushSoon(m_display);
    }
    return allReleased && wl_display_get_error(m_display) == 0;
}

bool RouterBinding::m_Release(const Holding& holding)
{
    const auto& [surface, name, mode] = holding;
    if (m_held.erase(holding) > 0)
    {
        tizen_keyrouter_ungrab(m_router, surface, name.c_str(), static_cast<uint32_t>(mode));
        return true;
    }
    const std::optional<int> other = OtherStrengthOf(mode);
    return !other || !m_Holds({surface, name, *other});
}

void RouterBinding::AwaitFrame(std::function<void()> reached)
{
    m_AwaitNothing();
    static const wl_callback_listener listener = {s_OnReached};
    m_reached = std::move(reached);
    m_frame = wl_display_sync(m_display);
    wl_callback_add_listener(m_frame, &listener, this);
    FlushSoon(m_display);
}

void RouterBinding::s_OnReached(void* data, wl_callback* callback, uint32_t)
{
    auto* self = static_cast<RouterBinding*>(data);
    wl_callback_destroy(callback);
    self->m_frame = nullptr;
    // The keys that came with this are in the toolkit's queue of events, and a job is appended to it.
    self->m_keysHandled = ecore_job_add(s_OnKeysHandled, self);
}

void RouterBinding::s_OnKeysHandled(void* data)
{
    auto* self = static_cast<RouterBinding*>(data);
    self->m_keysHandled = nullptr;
    self->m_reached();
}

void RouterBinding::m_AwaitNothing()
{
    if (m_frame != nullptr)
    {
        wl_callback_destroy(m_frame);
        m_frame = nullptr;
    }
    if (m_keysHandled != nullptr)
    {
        ecore_job_del(m_keysHandled);
        m_keysHandled = nullptr;
    }
}

void RouterBinding::s_OnKey(void* data, tizen_keyrouter*, const char* name, uint32_t code)
{
    static_cast<RouterBinding*>(data)->m_names.Add(code, name);
}

void RouterBinding::s_OnGrabbed(void* data, tizen_keyrouter*, const char*, uint32_t, uint32_t result)
{
    auto* self = static_cast<RouterBinding*>(data);
    if (self->m_asked.empty())
    {
        return; // late: the round trip that waited for it has failed
    }
    const Holding asked = self->m_asked.front();
    self->m_asked.pop_front();
    if (result != TIZEN_KEYROUTER_RESULT_GRANTED)
    {
        self->m_refused = true;
        return;
    }
    const auto& [surface, name, mode] = asked;
    if (const std::optional<int> replaced = OtherStrengthOf(mode))
    {
        self->m_held.erase({surface, name, *replaced});
    }
    self->m_held.insert(asked);
}

} // namespace veskar
