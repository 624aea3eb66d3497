/**
 * The connection to the compositor. The toolkit owns it, and reads and writes it too.
 *
 * A round trip reads from the connection and puts the toolkit's events into the toolkit's queue. The toolkit would look
 * there only when new data arrives, so each round trip queues a job in the main loop that dispatches them.
 */
#pragma once

struct wl_display;
struct wl_event_queue;

namespace veskar
{

/** Whether the toolkit still has this connection. */
bool IsStillConnected(const wl_display* display);

/** Waits until the compositor has handled all requests so far; events for `queue` are dispatched meanwhile. */
bool RoundTrip(wl_display* display, wl_event_queue* queue);

/** The same with the connection's default queue, which is the toolkit's. */
bool RoundTrip(wl_display* display);

/** Sends everything that is unsent, from the main loop. */
void FlushSoon(wl_display* display);

} // namespace veskar
