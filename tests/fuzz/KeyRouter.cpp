// What an application's side of the key router does with the compositor's events, and with the toolkit's key events.
//
// The input is a sequence of steps. What the compositor sends is written to the connection before the client reads it,
// and the client's round trips read only that.

#include "Input.h"
#include "OwnScreen.h"

#include <list>

#include <Ecore.h>
#include <Ecore_Input.h>
#include <ecore_wayland.h>
#include <key_router.h>
#include <sys/socket.h>
#include <unistd.h>
#include <wayland-client.h>

namespace
{

Input* s_input = nullptr;
wl_display* s_display = nullptr;
int s_compositor = -1;

/** The object, the event's number and its arguments. The router is object 5, a callback 6 or more. */
std::string NextEvent()
{
    const uint32_t object = s_input->Byte();
    const uint32_t opcode = s_input->Byte() % 4U;
    const std::string arguments = s_input->Bytes(s_input->Byte() % 16UL * 4);
    const uint32_t header[] = {object, static_cast<uint32_t>(8 + arguments.size()) << 16U | opcode};
    return std::string(reinterpret_cast<const char*>(header), sizeof header) + arguments;
}

/** The compositor sends its next events and the client reads them. Null is the toolkit's queue. */
int Read(wl_event_queue* queue)
{
    std::string events;
    for (int left = s_input->Byte() % 8; left > 0; --left)
    {
        events += NextEvent();
    }
    send(s_compositor, events.data(), events.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    wl_display_flush(s_display);
    const bool ready =
        (queue != nullptr ? wl_display_prepare_read_queue(s_display, queue) : wl_display_prepare_read(s_display)) == 0;
    if (ready && wl_display_read_events(s_display) < 0)
    {
        return -1;
    }
    return queue != nullptr ? wl_display_dispatch_queue_pending(s_display, queue)
                            : wl_display_dispatch_pending(s_display);
}

void GrabOrUngrab(int (*function)(wl_surface*, const _KeyList*), wl_surface* surface)
{
    std::list<std::string> names;
    _KeyList list;
    KeyRouter_Reset_KeyList(&list);
    for (int left = s_input->Byte() % 4; left > 0; --left)
    {
        names.push_back(s_input->Text());
        KeyRouter_Add_Key(names.back().c_str(), s_input->Byte() % 8, &list);
    }
    function(surface, &list);
}

void PressOrRelease()
{
    const char* const names[] = {"Return", "XF86Back", "7", "Up"};
    auto* key = static_cast<Ecore_Event_Key*>(calloc(1, sizeof(Ecore_Event_Key)));
    key->keyname = key->key = names[s_input->Byte() % 4];
    key->keycode = s_input->Byte();
    key->timestamp = s_input->Byte();
    ecore_event_add(s_input->Byte() % 2 != 0 ? ECORE_EVENT_KEY_DOWN : ECORE_EVENT_KEY_UP, key, nullptr, nullptr);
}

void Step(wl_registry* registry, wl_surface* surface)
{
    auto& screen = veskar::OwnScreen::Instance();
    switch (s_input->Byte() % 8)
    {
    case 0:
        return GrabOrUngrab(KeyRouter_Set_KeyList, surface);
    case 1:
        return GrabOrUngrab(KeyRouter_UnSet_KeyList, surface);
    case 2:
        return screen.Comes();
    case 3:
        return screen.IsDrawn();
    case 4:
        return screen.Goes();
    case 5:
        return PressOrRelease();
    case 6:
        ecore_wl2_sync();
        return ecore_main_loop_iterate();
    default:
        KeyRouter_Initialize(s_display, registry, nullptr, 1);
    }
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C"
{
    int __wrap_wl_display_roundtrip_queue(wl_display*, wl_event_queue* queue)
    {
        return Read(queue);
    }
    int __wrap_wl_display_roundtrip(wl_display*)
    {
        return Read(nullptr);
    }
    Ecore_Wl2_Display* __wrap_ecore_wl2_connected_display_get(const char*)
    {
        return reinterpret_cast<Ecore_Wl2_Display*>(s_display);
    }
    wl_display* __wrap_ecore_wl2_display_get(Ecore_Wl2_Display* display)
    {
        return reinterpret_cast<wl_display*>(display);
    }
}
// NOLINTEND(bugprone-reserved-identifier)

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static const bool started = ecore_init() > 0 && ecore_event_init() > 0;
    int ends[2];
    Require(started && socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) == 0, "it can start");
    wl_log_set_handler_client([](const char*, va_list) {});
    Input input(data, size);
    s_input = &input;
    s_compositor = ends[0];
    s_display = wl_display_connect_to_fd(ends[1]);
    wl_registry* registry = wl_display_get_registry(s_display);
    auto* compositor = static_cast<wl_compositor*>(wl_registry_bind(registry, 2, &wl_compositor_interface, 1));
    wl_surface* surface = wl_compositor_create_surface(compositor);
    KeyRouter_Initialize(s_display, registry, nullptr, 1);
    while (!input.Empty())
    {
        Step(registry, surface);
    }
    KeyRouter_Finalize();
    veskar::OwnScreen::Instance().Goes();
    ecore_main_loop_iterate();
    wl_surface_destroy(surface);
    wl_compositor_destroy(compositor);
    wl_registry_destroy(registry);
    wl_display_disconnect(s_display);
    s_display = nullptr;
    close(s_compositor);
    return 0;
}
