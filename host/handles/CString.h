/** The owner of a text that a C function has allocated with malloc. */
#pragma once

#include "FreeWith.h"

#include <cstdlib>
#include <memory>

namespace veskar
{

using CString = std::unique_ptr<char, FreeWith<std::free>>;

} // namespace veskar
