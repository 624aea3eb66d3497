/** Owners of what the platform's C functions allocate. */
#pragma once

#include <cstdlib>
#include <memory>
#include <utility>

#include <app_control.h>

namespace VESKAR_APP
{

/** A deleter that calls a C function. */
template <auto Free>
struct FreeWith
{
    template <typename T>
    void operator()(T* handle) const
    {
        Free(handle);
    }
};

/** A string that a C function allocated with malloc. */
using CString = std::unique_ptr<char, FreeWith<std::free>>;

/** An array of strings that a C function allocated, with its elements. */
class CStringArray
{
public:
    /** `strings` may be null: the array is then empty and false as a condition. */
    CStringArray(char** strings, int size) : m_strings(strings), m_size(strings != nullptr ? size : 0) {}
    ~CStringArray()
    {
        for (int i = 0; i < m_size; ++i)
        {
            std::free(m_strings[i]);
        }
        std::free(m_strings);
    }

    CStringArray(CStringArray&& other) noexcept
        : m_strings(std::exchange(other.m_strings, nullptr)), m_size(std::exchange(other.m_size, 0))
    {
    }
    CStringArray& operator=(CStringArray&&) = delete;

    explicit operator bool() const { return m_strings != nullptr; }
    int Size() const { return m_size; }
    const char* operator[](int index) const { return m_strings[index]; }

private:
    char** m_strings;
    int m_size;
};

/** A service request that this application made. */
using AppControl = std::unique_ptr<app_control_s, FreeWith<app_control_destroy>>;

/** A new empty service request, or null when the platform gives none. */
inline AppControl CreateAppControl()
{
    app_control_h request = nullptr;
    if (app_control_create(&request) != APP_CONTROL_ERROR_NONE)
    {
        return nullptr;
    }
    return AppControl(request);
}

} // namespace VESKAR_APP
