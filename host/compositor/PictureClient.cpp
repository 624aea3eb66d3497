#include "PictureClient.h"

#include <cerrno>
#include <cstring>
#include <sys/mman.h>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>
#include <wayland-client.h>

namespace veskar
{

namespace
{

[[noreturn]] void Fail(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

/** A file in memory with these pixels; the caller closes it. */
int FileOf(const std::vector<uint32_t>& pixels)
{
    const int fd = memfd_create("veskar-picture", MFD_CLOEXEC);
    const size_t size = pixels.size() * sizeof(uint32_t);
    if (fd < 0 || write(fd, pixels.data(), size) != static_cast<ssize_t>(size))
    {
        Fail("memory for a picture");
    }
    return fd;
}

void IgnoreRemoval(void*, wl_registry*, uint32_t) {}

} // namespace

PictureClient::PictureClient(wl_display* server, Draw draw, Ready ready)
    : m_draw(std::move(draw)), m_ready(std::move(ready))
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) < 0)
    {
        Fail("socketpair");
    }
    m_serverEnd = wl_client_create(server, ends[0]);
    m_clientEnd = wl_display_connect_to_fd(ends[1]);
    m_source = wl_event_loop_add_fd(wl_display_get_event_loop(server), ends[1], WL_EVENT_READABLE, s_OnReadable, this);
    m_registry = wl_display_get_registry(m_clientEnd);
    static const wl_registry_listener listener = {s_OnGlobal, IgnoreRemoval};
    wl_registry_add_listener(m_registry, &listener, this);
    wl_display_flush(m_clientEnd);
}

PictureClient::~PictureClient()
{
    wl_event_source_remove(m_source);
    wl_client_destroy(m_serverEnd);
    for (void* proxy : {static_cast<void*>(m_made), static_cast<void*>(m_making), static_cast<void*>(m_shown),
                        static_cast<void*>(m_shm), static_cast<void*>(m_registry)})
    {
        if (proxy != nullptr)
        {
            wl_proxy_destroy(static_cast<wl_proxy*>(proxy));
        }
    }
    wl_display_disconnect(m_clientEnd);
}

void PictureClient::Request(int width, int height)
{
    m_width = width;
    m_height = height;
    if (m_shm != nullptr && m_making == nullptr)
    {
        m_MakeBuffer();
    }
}

int PictureClient::s_OnReadable(int, uint32_t, void* data)
{
    auto* self = static_cast<PictureClient*>(data);
    wl_display_dispatch(self->m_clientEnd); // does not wait: there is something to read
    wl_display_flush(self->m_clientEnd);
    return 0;
}

void PictureClient::s_OnGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t)
{
    auto* self = static_cast<PictureClient*>(data);
    if (std::strcmp(interface, wl_shm_interface.name) != 0)
    {
        return;
    }
    self->m_shm = static_cast<wl_shm*>(wl_registry_bind(registry, name, &wl_shm_interface, 1));
    if (self->m_width > 0)
    {
        self->m_MakeBuffer();
    }
}

void PictureClient::m_MakeBuffer()
{
    const int fd = FileOf(m_draw(m_width, m_height));
    const int stride = m_width * static_cast<int>(sizeof(uint32_t));
    wl_shm_pool* pool = wl_shm_create_pool(m_shm, fd, stride * m_height);
    m_making = wl_shm_pool_create_buffer(pool, 0, m_width, m_height, stride, WL_SHM_FORMAT_XRGB8888);
    wl_shm_pool_destroy(pool);
    close(fd);

    static const wl_callback_listener listener = {s_OnBufferMade};
    m_made = wl_display_sync(m_clientEnd);
    wl_callback_add_listener(m_made, &listener, this);
    wl_display_flush(m_clientEnd);
}

void PictureClient::s_OnBufferMade(void* data, wl_callback* callback, uint32_t)
{
    auto* self = static_cast<PictureClient*>(data);
    wl_callback_destroy(callback);
    self->m_made = nullptr;

    wl_buffer* replaced = self->m_shown;
    self->m_shown = self->m_making;
    self->m_making = nullptr;
    wl_resource* buffer =
        wl_client_get_object(self->m_serverEnd, wl_proxy_get_id(reinterpret_cast<wl_proxy*>(self->m_shown)));
    wl_shm_buffer* pixels = wl_shm_buffer_get(buffer);
    const int width = wl_shm_buffer_get_width(pixels);
    const int height = wl_shm_buffer_get_height(pixels);
    self->m_ready(buffer, width, height);
    if (replaced != nullptr)
    {
        wl_buffer_destroy(replaced);
    }
    if (width != self->m_width || height != self->m_height)
    {
        self->m_MakeBuffer();
    }
}

} // namespace veskar
