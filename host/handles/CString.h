/** The owner of a text that a C function has allocated with malloc. */
#pragma once

#include <cstdlib>
#include <memory>

namespace veskar
{

struct FreeMemory
{
    void operator()(void* memory) const { std::free(memory); }
};

using CString = std::unique_ptr<char, FreeMemory>;

} // namespace veskar
