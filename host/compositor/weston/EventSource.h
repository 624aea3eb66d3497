/** A file descriptor that the compositor's event loop watches, for as long as this lives; gone before it is closed. */
#pragma once

#include <memory>
#include <wayland-server-core.h>

namespace veskar
{

struct EventSourceRemove
{
    void operator()(wl_event_source* source) const { wl_event_source_remove(source); }
};

using EventSource = std::unique_ptr<wl_event_source, EventSourceRemove>;

} // namespace veskar
