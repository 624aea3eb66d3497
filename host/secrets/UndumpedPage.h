/** Memory for a secret. */
#pragma once

#include <new>

#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

namespace veskar
{

/**
 * One page of memory, filled with zeros, that no core dump has and that stays out of the swap file where the system
 * lets us. Overwritten at the end.
 */
class UndumpedPage
{
public:
    /** Throws std::bad_alloc when there is no memory. */
    UndumpedPage()
        : m_size(static_cast<size_t>(sysconf(_SC_PAGESIZE))),
          m_page(mmap(nullptr, m_size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
    {
        if (m_page == MAP_FAILED)
        {
            throw std::bad_alloc();
        }
        madvise(m_page, m_size, MADV_DONTDUMP);
        mlock(m_page, m_size);
    }
    UndumpedPage(const UndumpedPage&) = delete;
    UndumpedPage& operator=(const UndumpedPage&) = delete;
    ~UndumpedPage()
    {
        explicit_bzero(m_page, m_size);
        munmap(m_page, m_size);
    }

    char* Data() const { return static_cast<char*>(m_page); }
    size_t Size() const { return m_size; }

private:
    size_t m_size;
    void* m_page;
};

} // namespace veskar
