/**
 * One handler of a Wayland signal, linked for exactly as long as this object lives.
 *
 * A handler may destroy its own Listener. The handler of a "destroyed" signal must: the signal's list dies with its
 * owner, and a Listener that outlives it would unlink itself from freed memory.
 */
#pragma once

#include "Weston.h"

#include <functional>

namespace veskar
{

class Listener
{
public:
    using Handler = std::function<void(void* data)>;

    Listener(wl_signal& signal, Handler handler) : m_handler(std::move(handler))
    {
        m_hook.listener.notify = s_Notify;
        m_hook.self = this;
        wl_signal_add(&signal, &m_hook.listener);
    }

    ~Listener() { wl_list_remove(&m_hook.listener.link); }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

private:
    struct Hook
    {
        wl_listener listener; // first: its address is the hook's
        Listener* self;
    };

    static void s_Notify(wl_listener* listener, void* data)
    {
        const Handler handler = reinterpret_cast<Hook*>(listener)->self->m_handler; // it may destroy the Listener
        handler(data);
    }

    Handler m_handler;
    Hook m_hook{};
};

} // namespace veskar
