/**
 * The connection to the compositor, which the toolkit owns, reads and writes too.
 *
 * A round trip reads from it. What it finds there for the toolkit lies in the toolkit's queue, unseen until the
 * connection next has data; so each round trip leaves a job in the main loop which hands it over.
 */
#pragma once

struct wl_display;
struct wl_event_queue;

namespace veskar
{

/** Waits until the compositor has handled all requests so far; events for `queue` are dispatched meanwhile. */
bool RoundTrip(wl_display* display, wl_event_queue* queue);

/** The same with the connection's default queue, which is the toolkit's. */
bool RoundTrip(wl_display* display);

/** Sends what is still unsent when the main loop goes on. */
void FlushSoon(wl_display* display);

} // namespace veskar
