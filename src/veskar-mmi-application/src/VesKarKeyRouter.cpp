#include "VesKarKeyRouter.h"

#include "EflGuard.h"
#include "Handles.h"
#include "Log.h"

#include <cstring>
#include <memory>

#include <ecore_wayland.h>
#include <key_router.h>

namespace VESKAR_APP
{

namespace
{

using EinaIterator = std::unique_ptr<Eina_Iterator, FreeWith<eina_iterator_free>>;

constexpr int NOT_FOUND = -1;

int FindKeyRouter()
{
    const MainLoopSection section;
    const EinaIterator globals(ecore_wl2_display_globals_get(ecore_wl2_connected_display_get(nullptr)));
    if (!globals)
    {
        return NOT_FOUND;
    }

    void* item = nullptr;
    while (eina_iterator_next(globals.get(), &item))
    {
        const auto* global = static_cast<const Ecore_Wl2_Global*>(item);
        if (std::strcmp(global->interface, KEYROUTER_INTERFACE) == 0)
        {
            return static_cast<int>(global->id);
        }
    }
    return NOT_FOUND;
}

} // namespace

int VesKarKeyRouter_GetId()
{
    const int id = FindKeyRouter();
    if (id != NOT_FOUND)
    {
        LOG_INFO("Found KeyRouter object");
    }
    return id;
}

} // namespace VESKAR_APP
