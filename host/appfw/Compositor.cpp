#include "Compositor.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <ecore_wayland.h>
#include <poll.h>
#include <wayland-client.h>

namespace veskar
{
namespace
{

/** Empty when unset. */
std::string_view Variable(const char* name)
{
    const char* value = getenv(name);
    return value != nullptr ? value : "";
}

/** As the toolkit chooses its display. */
bool UsesWayland()
{
    const auto display = Variable("ELM_DISPLAY");
    return display.empty() ? Variable("DISPLAY").empty() : display == "wl";
}

bool HasHungUp(int socket)
{
    pollfd state{socket, 0, 0};
    return poll(&state, 1, 0) > 0 && (state.revents & POLLHUP) != 0;
}

} // namespace

std::string MissingCompositor()
{
    if (!UsesWayland())
    {
        return "";
    }
    if (auto* display = wl_display_connect(nullptr))
    {
        wl_display_disconnect(display);
        return "";
    }
    const std::string why = strerror(errno);
    return "no compositor at WAYLAND_DISPLAY=" + std::string(Variable("WAYLAND_DISPLAY")) + ": " + why;
}

std::string LostCompositor()
{
    auto* connected = UsesWayland() ? ecore_wl2_connected_display_get(nullptr) : nullptr;
    if (connected == nullptr)
    {
        return "";
    }
    auto* display = ecore_wl2_display_get(connected);
    if (const int error = wl_display_get_error(display); error != 0)
    {
        return strerror(error);
    }
    // A write that fails ends the toolkit's loop too, and is no error of the connection.
    return HasHungUp(wl_display_get_fd(display)) ? strerror(EPIPE) : "";
}

} // namespace veskar
