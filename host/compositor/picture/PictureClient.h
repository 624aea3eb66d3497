/**
 * A client inside the compositor, whose only purpose is to own pictures.
 *
 * The renderer draws nothing but clients' shared-memory buffers, and only a client's requests can make one. Both ends
 * of this client's connection are served by the compositor's own event loop, so nothing here may wait for the other
 * end.
 */
#pragma once

#include "weston/EventSource.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

struct wl_buffer;
struct wl_callback;
struct wl_registry;
struct wl_shm;

namespace veskar
{

class PictureClient
{
public:
    using Draw = std::function<std::vector<uint32_t>(int width, int height)>;
    /** The buffer belongs to this client and lives until the next one is ready. */
    using Ready = std::function<void(wl_resource* buffer, int width, int height)>;

    /** Throws std::system_error. `draw` gives rows from the top, 0x00RRGGBB. */
    PictureClient(wl_display* server, Draw draw, Ready ready);
    ~PictureClient();

    PictureClient(const PictureClient&) = delete;
    PictureClient& operator=(const PictureClient&) = delete;

    /** `ready` is called later, from the event loop. One that comes meanwhile is drawn after that. */
    void Request(int width, int height);

private:
    static int s_OnReadable(int fd, uint32_t mask, void* self);
    static void s_OnGlobal(void* self, wl_registry* registry, uint32_t name, const char* interface, uint32_t version);
    static void s_OnBufferMade(void* self, wl_callback* callback, uint32_t serial);

    void m_MakeBuffer();

    struct Destroy
    {
        void operator()(wl_client* client) const;
        void operator()(wl_display* connection) const;
        /** Of any other kind: a proxy. */
        void operator()(void* proxy) const;
    };
    template <typename T>
    using Owned = std::unique_ptr<T, Destroy>;

    Draw m_draw;
    Ready m_ready;
    Owned<wl_display> m_clientEnd;
    Owned<wl_registry> m_registry;
    Owned<wl_shm> m_shm;
    Owned<wl_buffer> m_shown;
    Owned<wl_buffer> m_making;
    Owned<wl_callback> m_made;
    Owned<wl_client> m_serverEnd;
    EventSource m_source;
    int m_width = 0;
    int m_height = 0;
    bool m_isOutdated = false; // requested again while one is being made
};

} // namespace veskar
