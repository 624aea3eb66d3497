// In a program that has this, memory is overwritten before it is freed, by libraries too: the bus library keeps copies
// of every answer, and an answer may be a PIN.

#include <cstdlib>
#include <cstring>

#include <malloc.h>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the C library's.
extern "C"
{
    void __libc_free(void* block);

    void free(void* block)
    {
        if (block != nullptr)
        {
            explicit_bzero(block, malloc_usable_size(block));
            __libc_free(block);
        }
    }

    /** The C library's own would free the old block without a call of the function above. */
    void* realloc(void* block, size_t size)
    {
        const size_t before = malloc_usable_size(block);
        if (block != nullptr && size > 0 && size <= before)
        {
            return block;
        }
        void* larger = size > 0 ? malloc(size) : nullptr;
        if (larger != nullptr && block != nullptr)
        {
            memcpy(larger, block, before);
        }
        if (larger != nullptr || size == 0)
        {
            free(block);
        }
        return larger;
    }
}
// NOLINTEND(bugprone-reserved-identifier)
