#include "RoundTrip.h"

#include <Ecore.h>
#include <ecore_wayland.h>
#include <wayland-client.h>

namespace veskar
{

namespace
{

/** The toolkit may have disconnected since the job was queued. */
void dispatchWhatWasRead(void* display)
{
    Ecore_Wl2_Display* connected = ecore_wl2_connected_display_get(nullptr);
    if (connected != nullptr && ecore_wl2_display_get(connected) == display)
    {
        wl_display_dispatch_pending(static_cast<wl_display*>(display));
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
