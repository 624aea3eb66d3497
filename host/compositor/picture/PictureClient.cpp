#include "PictureClient.h"

#include "FileDescriptor.h"

#include <cerrno>
#include <cstring>
#include <iostream>
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

/** A file in memory with these pixels; owns nothing when there is not enough memory. */
FileDescriptor FileOf(const std::vector<uint32_t>& pixels)
{
    FileDescriptor file(memfd_create("veskar-picture", MFD_CLOEXEC));
    const size_t size = pixels.size() * sizeof(uint32_t);
    if (file && write(file.Get(), pixels.data(), size) != static_cast<ssize_t>(size))
    {
        file.Close();
    }
    return file;
}

void IgnoreRemoval(void*, wl_registry*, uint32_t) {}

} // namespace

void PictureClient::Destroy::operator()(wl_client* client) const
{
    wl_client_destroy(client);
}

void PictureClient::Destroy::operator()(wl_display* connection) const
{
    wl_display_disconnect(connection);
}

void PictureClient::Destroy::operator()(void* proxy) const
{
    wl_proxy_destroy(static_cast<wl_proxy*>(proxy));
}

PictureClient::PictureClient(wl_display* server, Draw draw, Ready ready)
    : m_draw(std::move(draw)), m_ready(std::move(ready))
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) < 0)
    {
        Fail("socketpair");
    }
    FileDescriptor serverEnd(ends[0]);
    FileDescriptor clientEnd(ends[1]);
    m_serverEnd.reset(wl_client_create(server, serverEnd.Get()));
    if (!m_serverEnd)
    {
        Fail("wl_client_create");
    }
    serverEnd.Release();                                              // owned by the client now
    m_clientEnd.reset(wl_display_connect_to_fd(clientEnd.Release())); // the library closes it even if this fails
    if (!m_clientEnd)
    {
        Fail("wl_display_connect_to_fd");
    }
    m_source.reset(
        wl_event_loop_add_fd(wl_display_get_event_loop(server), ends[1], WL_EVENT_READABLE, s_OnReadable, this));
    if (!m_source)
    {
        Fail("wl_event_loop_add_fd");
    }
    m_registry.reset(wl_display_get_registry(m_clientEnd.get()));
    static const wl_registry_listener listener = {s_OnGlobal, IgnoreRemoval};
    wl_registry_add_listener(m_registry.get(), &listener, this);
    wl_display_flush(m_clientEnd.get());
}

PictureClient::~PictureClient() = default;

void PictureClient::Request(int width, int height)
{
    m_width = width;
    m_height = height;
    m_isOutdated = m_making != nullptr;
    if (m_shm != nullptr && m_making == nullptr)
    {
        m_MakeBuffer();
    }
}

int PictureClient::s_OnReadable(int, uint32_t, void* data)
{
    auto* self = static_cast<PictureClient*>(data);
    wl_display_dispatch(self->m_clientEnd.get()); // does not block, because there is something to read
    wl_display_flush(self->m_clientEnd.get());
    return 0;
}

void PictureClient::s_OnGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t)
{
    auto* self = static_cast<PictureClient*>(data);
    if (std::strcmp(interface, wl_shm_interface.name) != 0)
    {
        return;
    }
    self->m_shm.reset(static_cast<wl_shm*>(wl_registry_bind(registry, name, &wl_shm_interface, 1)));
    if (self->m_width > 0)
    {
        self->m_MakeBuffer();
    }
}

void PictureClient::m_MakeBuffer()
{
    // No exception may leave this function: its caller is the Wayland library.
    const FileDescriptor file = FileOf(m_draw(m_width, m_height));
    if (!file)
    {
        std::cerr << "veskar-compositor: no memory for a picture: " << std::strerror(errno) << std::endl;
        return;
    }
    const int stride = m_width * static_cast<int>(sizeof(uint32_t));
    wl_shm_pool* pool = wl_shm_create_pool(m_shm.get(), file.Get(), stride * m_height);
    m_making.reset(wl_shm_pool_create_buffer(pool, 0, m_width, m_height, stride, WL_SHM_FORMAT_XRGB8888));
    wl_shm_pool_destroy(pool);

    static const wl_callback_listener listener = {s_OnBufferMade};
    m_made.reset(wl_display_sync(m_clientEnd.get()));
    wl_callback_add_listener(m_made.get(), &listener, this);
    wl_display_flush(m_clientEnd.get());
}

void PictureClient::s_OnBufferMade(void* data, wl_callback*, uint32_t)
{
    auto* self = static_cast<PictureClient*>(data);
    self->m_made.reset();

    auto* proxy = reinterpret_cast<wl_proxy*>(self->m_making.get());
    wl_resource* buffer = wl_client_get_object(self->m_serverEnd.get(), wl_proxy_get_id(proxy));
    wl_shm_buffer* pixels = wl_shm_buffer_get(buffer);
    const int width = wl_shm_buffer_get_width(pixels);
    const int height = wl_shm_buffer_get_height(pixels);
    self->m_ready(buffer, width, height);
    if (self->m_shown)
    {
        wl_buffer_destroy(self->m_shown.release());
    }
    self->m_shown = std::move(self->m_making);
    if (self->m_isOutdated)
    {
        self->m_isOutdated = false;
        self->m_MakeBuffer();
    }
}

} // namespace veskar
