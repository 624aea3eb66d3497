/**
 * Gives the toolkit's key events the platform's names.
 *
 * The toolkit names a key by its symbol, and does not know the symbols of most of the remote control's keys. While this
 * object exists, a filter runs before all handlers of key events and sets the router's name for the key's code.
 */
#pragma once

#include <Ecore.h>
#include <cstdint>
#include <map>
#include <string>

namespace veskar
{

class KeyNames
{
public:
    KeyNames();
    ~KeyNames();

    KeyNames(const KeyNames&) = delete;
    KeyNames& operator=(const KeyNames&) = delete;

    /** `code` as the Wayland keyboard sends it. */
    void Add(uint32_t code, const char* name) { m_names.emplace(code, name); }

private:
    static Eina_Bool s_Rename(void* self, void* loopData, int type, void* event);

    std::map<uint32_t, std::string> m_names; // events keep pointers to its strings, which never move
    Ecore_Event_Filter* m_filter;
};

} // namespace veskar
