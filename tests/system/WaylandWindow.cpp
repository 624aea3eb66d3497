#include "WaylandWindow.h"

#include "KeyTable.h"
#include "RouterBinding.h"
#include "xdg-shell-client-protocol.h"

#include <cstring>
#include <stdexcept>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

namespace
{

constexpr int WIDTH = 64;
constexpr int HEIGHT = 64;
constexpr uint32_t HALF_TRANSPARENT = 0x80404080;

} // namespace

/** The connection; all of its objects end with it. */
struct WaylandGlobals
{
    wl_display* display = wl_display_connect(nullptr);
    wl_registry* registry = nullptr;
    wl_compositor* compositor = nullptr;
    wl_shm* shm = nullptr;
    wl_seat* seat = nullptr;
    xdg_wm_base* shell = nullptr;
    wl_surface* surface = nullptr;
    uint32_t routerName = 0;
    bool configured = false;
    bool focused = false;
    std::vector<std::string> heard;

    ~WaylandGlobals() { wl_display_disconnect(display); }
};

namespace
{

WaylandGlobals& Globals(void* data)
{
    return *static_cast<WaylandGlobals*>(data);
}

template <typename T>
T* Bind(wl_registry* registry, uint32_t name, const wl_interface& interface)
{
    return static_cast<T*>(wl_registry_bind(registry, name, &interface, 1));
}

void OnGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t)
{
    WaylandGlobals& globals = Globals(data);
    const auto is = [interface](const char* wanted)
    {
        return std::strcmp(interface, wanted) == 0;
    };
    if (is(wl_compositor_interface.name))
    {
        globals.compositor = Bind<wl_compositor>(registry, name, wl_compositor_interface);
    }
    else if (is(wl_shm_interface.name))
    {
        globals.shm = Bind<wl_shm>(registry, name, wl_shm_interface);
    }
    else if (is(wl_seat_interface.name))
    {
        globals.seat = Bind<wl_seat>(registry, name, wl_seat_interface);
    }
    else if (is(xdg_wm_base_interface.name))
    {
        globals.shell = Bind<xdg_wm_base>(registry, name, xdg_wm_base_interface);
    }
    else if (is(KEYROUTER_INTERFACE))
    {
        globals.routerName = name;
    }
}

void OnKey(void* data, wl_keyboard*, uint32_t, uint32_t, uint32_t code, uint32_t state)
{
    const veskar::Key* key = veskar::keyByCode(code);
    const std::string name = key == nullptr ? "unknown" : key->name;
    Globals(data).heard.push_back(name + (state == WL_KEYBOARD_KEY_STATE_PRESSED ? " down" : " up"));
}

void OnKeymap(void*, wl_keyboard*, uint32_t, int fd, uint32_t)
{
    close(fd);
}

void OnConfigure(void* data, xdg_surface* surface, uint32_t serial)
{
    xdg_surface_ack_configure(surface, serial);
    Globals(data).configured = true;
}

wl_buffer* MakeBuffer(wl_shm* shm)
{
    const std::vector<uint32_t> pixels(WIDTH * HEIGHT, HALF_TRANSPARENT);
    const auto size = static_cast<int>(pixels.size() * sizeof(uint32_t));
    const int fd = memfd_create("window", MFD_CLOEXEC);
    if (fd < 0 || write(fd, pixels.data(), static_cast<size_t>(size)) != size)
    {
        throw std::runtime_error("no memory for a window");
    }
    wl_shm_pool* pool = wl_shm_create_pool(shm, fd, size);
    wl_buffer* buffer = wl_shm_pool_create_buffer(pool, 0, WIDTH, HEIGHT, WIDTH * 4, WL_SHM_FORMAT_ARGB8888);
    wl_shm_pool_destroy(pool);
    close(fd);
    return buffer;
}

_KeyList ListOf(const char* key, int mode)
{
    _KeyList list;
    KeyRouter_Reset_KeyList(&list);
    KeyRouter_Add_Key(key, mode, &list);
    return list;
}

} // namespace

WaylandWindow::WaylandWindow() : m_globals(std::make_unique<WaylandGlobals>())
{
    WaylandGlobals& globals = *m_globals;
    if (globals.display == nullptr)
    {
        throw std::runtime_error("no compositor");
    }
    static const wl_registry_listener registryListener = {OnGlobal, [](void*, wl_registry*, uint32_t) {
                                                          }};
    globals.registry = wl_display_get_registry(globals.display);
    wl_registry_add_listener(globals.registry, &registryListener, &globals);
    wl_display_roundtrip(globals.display);

    static const wl_keyboard_listener keyboardListener = {
        OnKeymap,
        [](void* data, wl_keyboard*, uint32_t, wl_surface*, wl_array*) { Globals(data).focused = true; },
        [](void* data, wl_keyboard*, uint32_t, wl_surface*) { Globals(data).focused = false; },
        OnKey,
        [](void*, wl_keyboard*, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t) {},
        nullptr};
    wl_keyboard_add_listener(wl_seat_get_keyboard(globals.seat), &keyboardListener, &globals);
    globals.surface = wl_compositor_create_surface(globals.compositor);
    m_router = std::make_unique<veskar::RouterBinding>(globals.display, globals.registry, globals.routerName);
}

WaylandWindow::~WaylandWindow() = default;

void WaylandWindow::BeginToShow()
{
    WaylandGlobals& globals = *m_globals;
    static const xdg_surface_listener surfaceListener = {OnConfigure};
    xdg_surface* shellSurface = xdg_wm_base_get_xdg_surface(globals.shell, globals.surface);
    xdg_surface_add_listener(shellSurface, &surfaceListener, &globals);
    xdg_surface_get_toplevel(shellSurface);
    wl_surface_commit(globals.surface);
    while (!globals.configured && wl_display_dispatch(globals.display) >= 0)
    {
    }
}

void WaylandWindow::Draw()
{
    WaylandGlobals& globals = *m_globals;
    wl_surface_attach(globals.surface, MakeBuffer(globals.shm), 0, 0);
    wl_surface_commit(globals.surface);
    wl_display_roundtrip(globals.display);
}

void WaylandWindow::Show()
{
    BeginToShow();
    Draw();
}

bool WaylandWindow::Grab(const char* key, int mode)
{
    return m_router->grab(m_globals->surface, ListOf(key, mode));
}

bool WaylandWindow::Ungrab(const char* key, int mode)
{
    const bool released = m_router->ungrab(m_globals->surface, ListOf(key, mode));
    // An application's main loop would send it.
    wl_display_roundtrip(m_globals->display);
    return released;
}

void WaylandWindow::Unbind()
{
    m_router.reset();
}

bool WaylandWindow::HasFocus()
{
    wl_display_roundtrip(m_globals->display);
    return m_globals->focused;
}

std::vector<std::string> WaylandWindow::Heard()
{
    // The compositor's answer comes behind everything that it has sent before.
    wl_display_roundtrip(m_globals->display);
    return std::exchange(m_globals->heard, {});
}
