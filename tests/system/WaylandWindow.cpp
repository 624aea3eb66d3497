#include "WaylandWindow.h"

#include "FileDescriptor.h"
#include "FreeWith.h"
#include "KeyTable.h"
#include "RouterBinding.h"
#include "xdg-shell-client-protocol.h"

#include <cstring>
#include <stdexcept>
#include <utility>

#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>
#include <wayland-client.h>

namespace
{

constexpr int WIDTH = 64;
constexpr int HEIGHT = 64;
constexpr uint32_t HALF_TRANSPARENT = 0x80404080;

} // namespace

template <typename T, auto Destroy>
using Owned = std::unique_ptr<T, veskar::FreeWith<Destroy>>;

struct WaylandGlobals
{
    Owned<wl_display, wl_display_disconnect> display{wl_display_connect(nullptr)};
    Owned<wl_registry, wl_registry_destroy> registry;
    Owned<wl_compositor, wl_compositor_destroy> compositor;
    Owned<wl_shm, wl_shm_destroy> shm;
    Owned<wl_seat, wl_seat_destroy> seat;
    Owned<wl_keyboard, wl_keyboard_destroy> keyboard;
    Owned<xdg_wm_base, xdg_wm_base_destroy> shell;
    Owned<wl_surface, wl_surface_destroy> surface;
    Owned<wl_buffer, wl_buffer_destroy> buffer;
    Owned<xdg_surface, xdg_surface_destroy> shellSurface;
    Owned<xdg_toplevel, xdg_toplevel_destroy> toplevel;
    uint32_t routerName = 0;
    bool configured = false;
    bool focused = false;
    std::vector<std::string> heard;
};

namespace
{

WaylandGlobals& Globals(void* data)
{
    return *static_cast<WaylandGlobals*>(data);
}

void OnGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t)
{
    WaylandGlobals& globals = Globals(data);
    const auto bind = [&](auto& owner, const wl_interface& wanted)
    {
        if (std::strcmp(interface, wanted.name) == 0)
        {
            void* object = wl_registry_bind(registry, name, &wanted, 1);
            owner.reset(static_cast<decltype(owner.get())>(object));
        }
    };
    bind(globals.compositor, wl_compositor_interface);
    bind(globals.shm, wl_shm_interface);
    bind(globals.seat, wl_seat_interface);
    bind(globals.shell, xdg_wm_base_interface);
    globals.routerName = std::strcmp(interface, KEYROUTER_INTERFACE) == 0 ? name : globals.routerName;
}

void OnKey(void* data, wl_keyboard*, uint32_t, uint32_t, uint32_t code, uint32_t state)
{
    const veskar::Key* key = veskar::KeyByCode(code);
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
    const std::vector<uint32_t> pixels(size_t{WIDTH} * HEIGHT, HALF_TRANSPARENT);
    const auto size = static_cast<int>(pixels.size() * sizeof(uint32_t));
    const veskar::FileDescriptor file(memfd_create("window", MFD_CLOEXEC));
    if (!file || write(file.Get(), pixels.data(), static_cast<size_t>(size)) != size)
    {
        throw std::runtime_error("no memory for a window");
    }
    const Owned<wl_shm_pool, wl_shm_pool_destroy> pool(wl_shm_create_pool(shm, file.Get(), size));
    return wl_shm_pool_create_buffer(pool.get(), 0, WIDTH, HEIGHT, WIDTH * 4, WL_SHM_FORMAT_ARGB8888);
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
    globals.registry.reset(wl_display_get_registry(globals.display.get()));
    wl_registry_add_listener(globals.registry.get(), &registryListener, &globals);
    wl_display_roundtrip(globals.display.get());

    static const wl_keyboard_listener keyboardListener = {
        OnKeymap,
        [](void* data, wl_keyboard*, uint32_t, wl_surface*, wl_array*) { Globals(data).focused = true; },
        [](void* data, wl_keyboard*, uint32_t, wl_surface*) { Globals(data).focused = false; },
        OnKey,
        [](void*, wl_keyboard*, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t) {},
        nullptr};
    globals.keyboard.reset(wl_seat_get_keyboard(globals.seat.get()));
    wl_keyboard_add_listener(globals.keyboard.get(), &keyboardListener, &globals);
    globals.surface.reset(wl_compositor_create_surface(globals.compositor.get()));
    m_router =
        std::make_unique<veskar::RouterBinding>(globals.display.get(), globals.registry.get(), globals.routerName);
}

WaylandWindow::~WaylandWindow()
{
    // Done first, so that no further message reaches the compositor, as when a client crashes.
    shutdown(wl_display_get_fd(m_globals->display.get()), SHUT_RDWR);
}

void WaylandWindow::BeginToShow()
{
    WaylandGlobals& globals = *m_globals;
    static const xdg_surface_listener surfaceListener = {OnConfigure};
    globals.shellSurface.reset(xdg_wm_base_get_xdg_surface(globals.shell.get(), globals.surface.get()));
    xdg_surface_add_listener(globals.shellSurface.get(), &surfaceListener, &globals);
    globals.toplevel.reset(xdg_surface_get_toplevel(globals.shellSurface.get()));
    wl_surface_commit(globals.surface.get());
    while (!globals.configured && wl_display_dispatch(globals.display.get()) >= 0)
    {
    }
}

void WaylandWindow::Draw()
{
    WaylandGlobals& globals = *m_globals;
    globals.buffer.reset(MakeBuffer(globals.shm.get()));
    wl_surface_attach(globals.surface.get(), globals.buffer.get(), 0, 0);
    wl_surface_commit(globals.surface.get());
    wl_display_roundtrip(globals.display.get());
}

void WaylandWindow::Show()
{
    BeginToShow();
    Draw();
}

bool WaylandWindow::Grab(const char* key, int mode)
{
    return m_router->Grab(m_globals->surface.get(), ListOf(key, mode));
}

bool WaylandWindow::Ungrab(const char* key, int mode)
{
    const bool released = m_router->Ungrab(m_globals->surface.get(), ListOf(key, mode));
    // An application's main loop would send it.
    wl_display_roundtrip(m_globals->display.get());
    return released;
}

void WaylandWindow::Unbind()
{
    m_router.reset();
}

bool WaylandWindow::HasFocus()
{
    wl_display_roundtrip(m_globals->display.get());
    return m_globals->focused;
}

std::vector<std::string> WaylandWindow::Heard()
{
    // The compositor's answer comes after everything that it has sent before.
    wl_display_roundtrip(m_globals->display.get());
    return std::exchange(m_globals->heard, {});
}
