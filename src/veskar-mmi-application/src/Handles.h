/** Owners of what the platform's and the toolkit's C functions hand out; each frees its raw pointer once. */
#pragma once

#include "EflGuard.h"

#include <cstdlib>
#include <memory>
#include <utility>

#include <Eina.h>
#include <app_control.h>

namespace VESKAR_APP
{

struct FreeMemory
{
    void operator()(void* memory) const { std::free(memory); }
};

/** A string (or other block) that a C function allocated with malloc. */
using CString = std::unique_ptr<char, FreeMemory>;

/** An array of strings that a C function allocated, elements and all. */
class CStringArray
{
public:
    /** `strings` may be null, for an empty array. */
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

struct DestroyAppControl
{
    void operator()(app_control_h request) const { app_control_destroy(request); }
};

/** A service request that this application made. */
using AppControl = std::unique_ptr<app_control_s, DestroyAppControl>;

struct FreeEinaList
{
    void operator()(Eina_List* list) const { EFL_GUARD(eina_list_free, list); }
};

/** A list's nodes; what they point to stays whose it is. */
using EinaList = std::unique_ptr<Eina_List, FreeEinaList>;

struct FreeEinaIterator
{
    void operator()(Eina_Iterator* iterator) const { EFL_GUARD(eina_iterator_free, iterator); }
};

using EinaIterator = std::unique_ptr<Eina_Iterator, FreeEinaIterator>;

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
