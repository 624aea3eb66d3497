/** An evening by a lake: the TV programme of a desk TV. Drawn, not stored, so that it fits every size. */
#pragma once

#include <cstdint>
#include <vector>

namespace veskar
{

/** Rows from the top, 0x00RRGGBB. The same size gives the same picture. */
std::vector<uint32_t> DrawLandscape(int width, int height);

} // namespace veskar
