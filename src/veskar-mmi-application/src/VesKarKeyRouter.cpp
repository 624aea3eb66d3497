#include "VesKarKeyRouter.h"

#include "EflGuard.h"
#include "Log.h"

#include <cstring>
#include <memory>

#include <ecore_wayland.h>
#include <key_router.h>

namespace VESKAR_APP
{

namespace
{

using EinaIterator = std::unique_ptr<Eina_Iterator, GuardedFreeWith<eina_iterator_free>>;

} // namespace

int VesKarKeyRouter_GetId()
{
    const EinaIterator globals(ecore_wl2_display_globals_get(ecore_wl2_connected_display_get(nullptr)));
    if (!globals)
    {
        return -1;
    }

    void* item = nullptr;
    while (eina_iterator_next(globals.get(), &item))
    {
        const auto* global = static_cast<const Ecore_Wl2_Global*>(item);
        if (std::strcmp(global->interface, KEYROUTER_INTERFACE) == 0)
        {
            LOG_INFO("Found KeyRouter object");
            return static_cast<int>(global->id);
        }
    }
    return -1;
}

} // namespace VESKAR_APP
