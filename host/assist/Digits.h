#pragma once

#include "UndumpedPage.h"

#include <algorithm>
#include <string_view>

namespace veskar
{

/** Digits that leave no trace: what is removed is overwritten, the memory never moves, and no core dump has it. */
class Digits
{
public:
    explicit Digits(int capacity) : m_capacity(std::min<size_t>(std::max(capacity, 0), m_digits.Size())) {}

    bool Full() const { return m_count == m_capacity; }
    std::size_t Count() const { return m_count; }
    std::string_view View() const { return {m_digits.Data(), m_count}; }

    void Append(char digit)
    {
        if (!Full())
        {
            m_digits.Data()[m_count++] = digit;
        }
    }

    void RemoveLast()
    {
        if (m_count > 0)
        {
            explicit_bzero(m_digits.Data() + --m_count, 1);
        }
    }

    void Clear()
    {
        explicit_bzero(m_digits.Data(), m_count);
        m_count = 0;
    }

private:
    UndumpedPage m_digits;
    std::size_t m_capacity;
    std::size_t m_count = 0;
};

} // namespace veskar
