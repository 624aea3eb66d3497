#pragma once

#include <cstring>
#include <string_view>
#include <vector>

namespace veskar
{

/** Digits that leave no trace: what is removed is overwritten, and the memory never moves. */
class Digits
{
public:
    explicit Digits(int capacity) : m_digits(capacity > 0 ? capacity : 0, '\0') {}
    ~Digits() { Clear(); }
    Digits(const Digits&) = delete;
    Digits& operator=(const Digits&) = delete;

    bool Full() const { return m_count == m_digits.size(); }
    std::size_t Count() const { return m_count; }
    std::string_view View() const { return {m_digits.data(), m_count}; }

    void Append(char digit)
    {
        if (!Full())
        {
            m_digits[m_count++] = digit;
        }
    }

    void RemoveLast()
    {
        if (m_count > 0)
        {
            explicit_bzero(&m_digits[--m_count], 1);
        }
    }

    void Clear()
    {
        explicit_bzero(m_digits.data(), m_digits.size());
        m_count = 0;
    }

private:
    std::vector<char> m_digits;
    std::size_t m_count = 0;
};

} // namespace veskar
