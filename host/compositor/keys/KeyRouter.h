/** The Wayland global through which clients ask for keys. */
#pragma once

#include "GrabTable.h"

#include <vector>

namespace veskar
{

class KeyRouter
{
public:
    /** `grabs` must outlive this object. */
    KeyRouter(wl_display* display, GrabTable& grabs);
    ~KeyRouter();

    KeyRouter(const KeyRouter&) = delete;
    KeyRouter& operator=(const KeyRouter&) = delete;

    GrabTable& Grabs() { return m_grabs; }

private:
    static void s_Bind(wl_client* client, void* self, uint32_t version, uint32_t id);
    static void s_Unbind(wl_resource* resource);

    GrabTable& m_grabs;
    wl_global* m_global;
    std::vector<wl_resource*> m_bound;
};

} // namespace veskar
