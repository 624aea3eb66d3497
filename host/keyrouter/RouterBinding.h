/**
 * An application's binding to the compositor's key router, and the keys that it holds there.
 *
 * The binding has its own event queue, so that waiting for an answer runs none of the toolkit's handlers. It remembers
 * which keys are held: every screen releases and grabs whole groups of keys, and only changes are sent.
 */
#pragma once

#include "KeyGate.h"
#include "KeyNames.h"
#include "OwnScreen.h"

#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <tuple>

struct tizen_keyrouter;
struct wl_callback;
struct wl_display;
struct wl_event_queue;
struct wl_registry;
struct wl_surface;
struct _KeyList;

namespace veskar
{

class RouterBinding : private OwnScreen::Display
{
public:
    /** Throws std::runtime_error when the compositor does not answer. */
    RouterBinding(wl_display* display, wl_registry* registry, uint32_t globalName);
    ~RouterBinding() override;

    RouterBinding(const RouterBinding&) = delete;
    RouterBinding& operator=(const RouterBinding&) = delete;

    /** False when one of the keys is refused. */
    bool Grab(wl_surface* surface, const _KeyList& list);

    /** False when one of the keys is held, but in another mode. */
    bool Ungrab(wl_surface* surface, const _KeyList& list);

private:
    using Holding = std::tuple<wl_surface*, std::string, int>; // the surface, the key, the mode

    static void s_OnKey(void* self, tizen_keyrouter* router, const char* name, uint32_t code);
    static void s_OnGrabbed(void* self, tizen_keyrouter* router, const char* name, uint32_t mode, uint32_t result);

    static void s_OnReached(void* self, wl_callback* callback, uint32_t serial);
    static void s_OnKeysHandled(void* self);

    void Changed(bool shown, int uiId) override;
    void AwaitFrame(std::function<void()> reached) override;
    std::set<std::string> HeldKeys() const override;
    void m_Tell(uint32_t code, bool taken);
    void m_AwaitNothing();
    bool m_Holds(const Holding& holding) const { return m_held.count(holding) > 0; }
    bool m_Release(const Holding& holding);

    struct QueueDelete
    {
        void operator()(wl_event_queue* queue) const;
    };

    wl_display* m_display;
    std::unique_ptr<wl_event_queue, QueueDelete> m_queue;
    tizen_keyrouter* m_router = nullptr;
    KeyNames m_names;
    KeyGate m_gate;
    std::set<Holding> m_held;
    std::deque<Holding> m_asked; // answers come in this order
    bool m_refused = false;
    std::function<void()> m_reached;
    wl_callback* m_frame = nullptr;     // until the compositor has the frame
    Ecore_Job* m_keysHandled = nullptr; // after that, until the keys before it are handled
};

} // namespace veskar
