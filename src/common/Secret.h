/** For PINs: memory that is overwritten before it is given back, and that no core dump has. */
#pragma once

#include <cstddef>
#include <initializer_list>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <string.h>
#include <sys/mman.h>

namespace VESKAR_APP
{

/** Overwrites the characters of a text that held a secret. The compiler cannot optimise this away. */
template <typename Text>
void Wipe(Text& text)
{
    if (!text.empty()) // an empty vector may have a null pointer
    {
        explicit_bzero(text.data(), text.size());
    }
}

/**
 * Each block has pages of its own, which no core dump has and which stay out of the swap file where the system lets us.
 * It is overwritten before it is freed, also when a container moves to a larger block.
 */
template <typename T>
struct WipingAllocator
{
    using value_type = T;

    WipingAllocator() = default;
    template <typename U>
    WipingAllocator(const WipingAllocator<U>&)
    {
    }

    T* allocate(std::size_t count)
    {
        const std::size_t size = count * sizeof(T);
        void* block = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (block == MAP_FAILED)
        {
            throw std::bad_alloc();
        }
        madvise(block, size, MADV_DONTDUMP);
        mlock(block, size);
        return static_cast<T*>(block);
    }
    void deallocate(T* block, std::size_t count)
    {
        explicit_bzero(block, count * sizeof(T));
        munmap(block, count * sizeof(T));
    }

    bool operator==(const WipingAllocator&) const { return true; }
    bool operator!=(const WipingAllocator&) const { return false; }
};

using SecretCharacters = std::vector<char, WipingAllocator<char>>;

/** A text made of parts, some of them secret. The destructor overwrites it. */
class SecretText
{
public:
    SecretText(std::initializer_list<std::string_view> parts)
    {
        std::size_t size = 0;
        for (const std::string_view part : parts)
        {
            size += part.size();
        }
        m_text.reserve(size); // so that the text never moves and leaves a copy behind
        for (const std::string_view part : parts)
        {
            m_text.append(part);
        }
    }
    ~SecretText() { Wipe(m_text); }

    SecretText(const SecretText&) = delete;
    SecretText& operator=(const SecretText&) = delete;

    const std::string& Get() const { return m_text; }

private:
    std::string m_text;
};

} // namespace VESKAR_APP
