/**
 * The compositor module of a desk TV: a key router, a remote control and a programme behind the windows.
 *
 * It expects kiosk-shell and the pixman renderer, and is loaded with --modules=…/veskar-compositor.so. The option
 * --no-keyrouter (or VESKAR_NO_KEYROUTER=1) leaves the key router out: a TV on which no key can be grabbed.
 */
#include "CoreLimit.h"
#include "RemoteSocketPath.h"
#include "keys/KeyRouter.h"
#include "keys/Routing.h"
#include "picture/Backdrop.h"
#include "picture/Moments.h"
#include "remote/RemoteCommands.h"
#include "seat/DeskKeyboard.h"
#include "windows/Overlays.h"

#include <cstring>
#include <iostream>
#include <optional>

namespace veskar
{

namespace
{

/** Owns all parts of the module. Members are in this order so that each is destroyed before the parts that it uses. */
class Tv
{
public:
    Tv(weston_compositor* compositor, bool withKeyRouter)
        : m_compositor(compositor), m_seat(compositor), m_windows(compositor),
          m_grabs([this](const Key& key, GrabMode mode) { m_GrabEnded(key, mode); }),
          m_routing(m_seat, m_grabs, m_lateDigits, m_windows, m_takenKeys), m_overlays(compositor, m_seat, m_windows),
          m_screenshots(compositor), m_moments(compositor), m_backdrop(compositor, [this] { m_OpenSocket(); }),
          m_end(compositor->destroy_signal, [this](void*) { delete this; })
    {
        if (withKeyRouter)
        {
            m_keyRouter.emplace(compositor->wl_display, m_grabs, m_takenKeys);
        }
        if (m_seat.HasRealKeyboard())
        {
            std::cerr << DeskKeyboardHelp() << std::flush;
        }
    }

private:
    /** The tools take the socket as a sign that the TV is ready, so it waits until a screenshot shows the whole TV. */
    void m_OpenSocket()
    {
        if (m_socket)
        {
            return;
        }
        try
        {
            m_socket.emplace(wl_display_get_event_loop(m_compositor->wl_display), RemoteSocketPath());
            SetRemoteCommands(*m_socket, {m_seat, m_grabs, m_routing, m_takenKeys, m_screenshots, m_moments, m_backdrop,
                                          m_keyRouter ? &*m_keyRouter : nullptr});
        }
        catch (const std::exception& error)
        {
            weston_log("veskar-compositor: no remote control: %s\n", error.what());
            weston_compositor_exit_with_code(m_compositor, EXIT_FAILURE);
        }
    }

    void m_GrabEnded(const Key& key, GrabMode mode)
    {
        if (mode != GrabMode::Registered)
        {
            m_lateDigits.Released(key, LateDigits::Now());
        }
    }

    weston_compositor* m_compositor;
    Seat m_seat;
    WindowStack m_windows;
    LateDigits m_lateDigits;
    TakenKeys m_takenKeys;
    GrabTable m_grabs;
    Routing m_routing;
    Overlays m_overlays;
    Screenshots m_screenshots;
    Moments m_moments;
    Backdrop m_backdrop;
    std::optional<RemoteSocket> m_socket;
    std::optional<KeyRouter> m_keyRouter;
    Listener m_end;
};

/** Removes the option from the compositor's command line, which must be empty when all modules are loaded. */
bool TakeOption(const char* option, int* argc, char* argv[])
{
    for (int i = 1; i < *argc; ++i)
    {
        if (std::strcmp(argv[i], option) == 0)
        {
            std::memmove(&argv[i], &argv[i + 1], static_cast<size_t>(*argc - i - 1) * sizeof argv[0]);
            --*argc;
            return true;
        }
    }
    return false;
}

bool IsSet(const char* variable)
{
    const char* value = std::getenv(variable);
    return value != nullptr && std::strcmp(value, "1") == 0;
}

} // namespace

} // namespace veskar

extern "C" __attribute__((visibility("default"))) int wet_module_init(weston_compositor* compositor, int* argc,
                                                                      char* argv[])
{
    using namespace veskar;
    WriteNoCoreDump();
    const bool withKeyRouter = !TakeOption("--no-keyrouter", argc, argv) && !IsSet("VESKAR_NO_KEYROUTER");
    try
    {
        new Tv(compositor, withKeyRouter); // deletes itself when the compositor ends
    }
    catch (const std::exception& error)
    {
        weston_log("veskar-compositor: %s\n", error.what());
        return -1;
    }
    return 0;
}
