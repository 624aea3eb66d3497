#include "Connection.h"

#include <Ecore.h>
#include <ecore_wayland.h>
#include <wayland-client.h>

namespace veskar
{

bool IsStillConnected(const wl_display* display)
{
    Ecore_Wl2_Display* connected = ecore_wl2_connected_display_get(nullptr);
    return connected != nullptr && ecore_wl2_display_get(connected) == display;
}

namespace
{

// The toolkit may have disconnected since a job was queued.

void DispatchWhatWasRead(void* display)
{
    if (IsStillConnected(static_cast<wl_display*>(display)))
    {
        wl_display_dispatch_pending(static_cast<wl_display*>(display));
    }
}

void Flush(void* display)
{
    if (IsStillConnected(static_cast<wl_display*>(display)))
    {
        wl_display_flush(static_cast<wl_display*>(display));
    }
}

bool Finish(wl_display* display, int dispatched)
{
    ecore_job_add(DispatchWhatWasRead, display);
    return dispatched >= 0;
}

} // namespace

bool RoundTrip(wl_display* display, wl_event_queue* queue)
{
    return Finish(display, wl_display_roundtrip_queue(display, queue));
}

void FlushSoon(wl_display* display)
{
    ecore_job_add(Flush, display);
}

bool RoundTrip(wl_display* display)
{
    return Finish(display, wl_display_roundtrip(display));
}

} // namespace veskar

extern "C" void ecore_wl2_sync(void)
{
    Ecore_Wl2_Display* connected = ecore_wl2_connected_display_get(nullptr);
    if (connected != nullptr)
    {
        veskar::RoundTrip(ecore_wl2_display_get(connected));
    }
}
