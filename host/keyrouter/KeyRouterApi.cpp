#include "RouterBinding.h"

#include <algorithm>
#include <dlog.h>
#include <key_router.h>
#include <stdexcept>
#include <string_view>

namespace
{

/**
 * The application's only binding. Null without a router; every grab fails then. Never destroyed: an application does
 * not have to finalize, and its connection to the compositor is closed before the exit handlers run.
 */
std::unique_ptr<veskar::RouterBinding>& Binding()
{
    static auto* one = new std::unique_ptr<veskar::RouterBinding>;
    return *one;
}

/** Each screen asks for some hundred keys: one line says why none is granted. */
bool HasRouter()
{
    static bool told = false;
    if (!Binding() && !told)
    {
        told = true;
        __dlog_print(LOG_ID_MAIN, DLOG_WARN, "VESKAR-KEYROUTER",
                     "the compositor has no key router for this process: it hears only the keys of its focused window");
    }
    return Binding() != nullptr;
}

} // namespace

extern "C"
{

    int KeyRouter_Initialize(wl_display* display, wl_registry* registry, wl_seat*, unsigned int id)
    {
        Binding().reset();
        if (display == nullptr || registry == nullptr)
        {
            return 0;
        }
        try
        {
            Binding() = std::make_unique<veskar::RouterBinding>(display, registry, id);
        }
        catch (const std::runtime_error&)
        {
            return 0;
        }
        return 1;
    }

    void KeyRouter_Finalize(void)
    {
        Binding().reset();
    }

    void KeyRouter_Reset_KeyList(_KeyList* list)
    {
        list->count = 0;
    }

    int KeyRouter_Add_Key(const char* name, int mode, _KeyList* list)
    {
        if (list->count == KEYROUTER_LIST_CAPACITY)
        {
            return 0;
        }
        list->keys[list->count++] = {name, mode};
        return 1;
    }

    int KeyRouter_Remove_Key(const char* name, int mode, _KeyList* list)
    {
        KeyRouter_Key* end = list->keys + list->count;
        KeyRouter_Key* found = std::find_if(list->keys, end,
                                            [name, mode](const KeyRouter_Key& key)
                                            { return key.mode == mode && std::string_view(key.name) == name; });
        if (found == end)
        {
            return 0;
        }
        std::move(found + 1, end, found);
        --list->count;
        return 1;
    }

    int KeyRouter_Set_KeyList(wl_surface* surface, const _KeyList* list)
    {
        return HasRouter() && surface != nullptr && Binding()->Grab(surface, *list) ? 1 : 0;
    }

    int KeyRouter_UnSet_KeyList(wl_surface* surface, const _KeyList* list)
    {
        return HasRouter() && surface != nullptr && Binding()->Ungrab(surface, *list) ? 1 : 0;
    }
}
