/** The Wayland global through which clients ask for keys, and tell what becomes of them. */
#pragma once

#include "AwaitedPresses.h"
#include "GrabTable.h"
#include "TakenKeys.h"

#include <map>
#include <optional>
#include <vector>

namespace veskar
{

class KeyRouter
{
public:
    /** A client's screen that is on the display. */
    struct Screen
    {
        wl_client* client;
        int uiId;
    };

    /** `grabs` and `taken` must outlive this object. */
    KeyRouter(wl_display* display, GrabTable& grabs, TakenKeys& taken);
    ~KeyRouter();

    KeyRouter(const KeyRouter&) = delete;
    KeyRouter& operator=(const KeyRouter&) = delete;

    GrabTable& Grabs() { return m_grabs; }
    AwaitedPresses& Presses() { return m_presses; }
    /** A client says what became of a key that it got. */
    void Heard(wl_client* client, uint32_t code, bool taken);

    /** Whether the client says of each key whether it took it. */
    bool IsBoundBy(const wl_client* client) const;

    std::vector<Screen> Screens() const;

    /** `uiId` is empty when the binding's client has no screen. */
    void SetScreen(wl_resource* binding, std::optional<int> uiId) { m_bound[binding] = uiId; }

private:
    static void s_Bind(wl_client* client, void* self, uint32_t version, uint32_t id);
    static void s_Unbind(wl_resource* resource);

    GrabTable& m_grabs;
    TakenKeys& m_taken;
    wl_global* m_global;
    AwaitedPresses m_presses;
    std::map<wl_resource*, std::optional<int>> m_bound; // and the id of the client's screen
};

} // namespace veskar
