#include "Connection.h"

#include <Ecore.h>
#include <ecore_wayland.h>
#include <wayland-client.h>

namespace veskar
{

namespace
{

/** The toolkit may have disconnected since a job was queued. */
bool isStillConnected(const void* display)
{
    Ecore_Wl2_Display* connected = ecore_wl2_connected_display_get(nullptr);
    return connected != nullptr && ecore_wl2_display_get(connected) == display;
}

void dispatchWhatWasRead(void* display)
{
    if (isStillConnected(display))
    {
        wl_display_dispatch_pending(static_cast<wl_display*>(display));
    }
}

void flush(void* display)
{
    if (isStillConnected(display))
    {
        wl_display_flush(static_cast<wl_display*>(display));
    }
}

bool finish(wl_display* display, int dispatched)
{
    ecore_job_add(dispatchWhatWasRead, display);
    return dispatched >= 0;
}

} // namespace

bool roundTrip(wl_display* display, wl_event_queue* queue)
{
    return finish(display, wl_display_roundtrip_queue(display, queue));
}

void flushSoon(wl_display* display)
{
    ecore_job_add(flush, display);
}

bool roundTrip(wl_display* display)
{
    return finish(display, wl_display_roundtrip(display));
}

} // namespace veskar

extern "C" void ecore_wl2_sync(void)
{
    Ecore_Wl2_Display* connected = ecore_wl2_connected_display_get(nullptr);
    if (connected != nullptr)
    {
        veskar::roundTrip(ecore_wl2_display_get(connected));
    }
}
