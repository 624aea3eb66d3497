#include "FreedMemory.h"

#include <algorithm>

#include <malloc.h>

namespace veskar
{
namespace
{

/** Seconds. */
constexpr double A_WHILE = 1;

/** Bytes. Less is not worth the search for it. */
constexpr size_t MUCH = 1UL << 20;

} // namespace

FreedMemory::~FreedMemory()
{
    if (m_timer != nullptr)
    {
        ecore_timer_del(m_timer);
    }
    if (m_idler != nullptr)
    {
        ecore_idler_del(m_idler);
    }
}

void FreedMemory::GiveBackSoon()
{
    if (m_timer == nullptr && m_idler == nullptr)
    {
        m_timer = ecore_timer_add(A_WHILE, s_OnTime, this);
    }
}

Eina_Bool FreedMemory::s_OnTime(void* data)
{
    auto* self = static_cast<FreedMemory*>(data);
    self->m_timer = nullptr;
    self->m_idler = ecore_idler_add(s_OnIdle, self);
    return ECORE_CALLBACK_CANCEL;
}

Eina_Bool FreedMemory::s_OnIdle(void* data)
{
    auto* self = static_cast<FreedMemory*>(data);
    self->m_idler = nullptr;
    const size_t free = mallinfo2().fordblks;
    self->m_givenBack = std::min(self->m_givenBack, free);
    if (free - self->m_givenBack >= MUCH)
    {
        malloc_trim(0);
        self->m_givenBack = free; // the C library counts it as before
        self->GiveBackSoon();     // a long list goes through its rows for seconds, and frees most of what they took
    }
    return ECORE_CALLBACK_CANCEL;
}

} // namespace veskar
