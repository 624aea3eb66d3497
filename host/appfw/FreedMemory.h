/** Gives back to the system what a large screen has left behind. */
#pragma once

#include <Ecore.h>

namespace veskar
{

/**
 * The C library keeps freed memory for later. A screen with a large text needs hundreds of megabytes for a moment, the
 * next ones hardly any. Main thread only.
 */
class FreedMemory
{
public:
    FreedMemory() = default;
    FreedMemory(const FreedMemory&) = delete;
    FreedMemory& operator=(const FreedMemory&) = delete;
    ~FreedMemory();

    /**
     * For a moment at which much may have been freed. The memory is given back a second later, when the main loop has
     * nothing else to do: never between a key or a request and its picture.
     */
    void GiveBackSoon();

private:
    static Eina_Bool s_OnTime(void* data);
    static Eina_Bool s_OnIdle(void* data);

    Ecore_Timer* m_timer = nullptr;
    Ecore_Idler* m_idler = nullptr;
    size_t m_givenBack = 0; // bytes that are free and were given back
};

} // namespace veskar
