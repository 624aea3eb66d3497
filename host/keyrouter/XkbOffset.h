#pragma once

#include <cstdint>

namespace veskar
{

// Keymaps, and with them the toolkit's events, count from the first code that X11 allows.
constexpr uint32_t XKB_OFFSET = 8;

} // namespace veskar
