/** The owner of an event loop's watch over a file descriptor; it must end before the descriptor is closed. */
#pragma once

#include "FreeWith.h"

#include <memory>
#include <wayland-server-core.h>

namespace veskar
{

using EventSource = std::unique_ptr<wl_event_source, FreeWith<wl_event_source_remove>>;

} // namespace veskar
