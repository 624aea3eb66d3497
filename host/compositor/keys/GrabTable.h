/** Records which surface has grabbed which key. A surface's grabs end when it is destroyed. */
#pragma once

#include "KeyTable.h"
#include "weston/Listener.h"

#include <functional>
#include <list>
#include <memory>

namespace veskar
{

/** The values are the key router protocol's. */
enum class GrabMode
{
    Topmost = 2,
    Exclusive = 4,
    Registered = 5
};

const char* NameOf(GrabMode mode);

struct Grab
{
    weston_surface* surface;
    wl_client* client;
    const Key* key;
    GrabMode mode;
    std::unique_ptr<Listener> surfaceGone;
};

class GrabTable
{
public:
    /** Called when a grab has ended and no newer one of the same surface replaces it. */
    using Ended = std::function<void(const Key& key, GrabMode mode)>;

    GrabTable() = default;
    explicit GrabTable(Ended ended) : m_ended(std::move(ended)) {}

    /**
     * Returns false when `mode` is Exclusive and another surface holds the key exclusively. A surface can have one
     * registration of a key and, at the same time, one grab of it in one of the other two modes. A new grab replaces an
     * older one of its sort.
     */
    bool Add(wl_client* client, weston_surface* surface, const Key& key, GrabMode mode);

    /** Does nothing when there is no such grab. */
    void Remove(weston_surface* surface, const Key& key, GrabMode mode);

    /** Ends every grab of this client. Must be called before the client is destroyed. */
    void RemoveClient(wl_client* client);

    bool Holds(weston_surface* surface, const Key& key, GrabMode mode) const;

    /** A surface that holds the key in this mode and for which `accepts` is true, or null. */
    weston_surface* Holder(const Key& key, GrabMode mode, const std::function<bool(weston_surface*)>& accepts) const;

    /** The surface that holds the key exclusively, or null. */
    weston_surface* ExclusiveHolder(const Key& key) const;

    const std::list<Grab>& All() const { return m_grabs; }

private:
    void m_RemoveIf(const std::function<bool(const Grab&)>& isMeant);

    std::list<Grab> m_grabs;
    Ended m_ended = [](const Key&, GrabMode) {
    };
};

} // namespace veskar
