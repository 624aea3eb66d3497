/**
 * Connects one handler to a Wayland signal for the lifetime of this object.
 *
 * A handler may destroy its own Listener. The handler of a "destroyed" signal must do so: the signal is part of the
 * object that is being destroyed, and a Listener that outlives it would unlink itself from freed memory.
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
        wl_listener listener; // must be first: its address is also the hook's
        Listener* self;
    };

    static void s_Notify(wl_listener* listener, void* data)
    {
        // A copy, because the handler may destroy the Listener.
        const Handler handler = reinterpret_cast<Hook*>(listener)->self->m_handler;
        handler(data);
    }

    Handler m_handler;
    Hook m_hook{};
};

} // namespace veskar
