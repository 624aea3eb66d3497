/** A lake: the TV programme of a desk TV. Drawn, not stored, so that it fits every size. */
#pragma once

#include <cstdint>
#include <vector>

namespace veskar
{

enum class Daylight
{
    /** A dark film. */
    Evening,
    /** Snow at noon: as bright as a programme gets. */
    Snow
};

/** Rows from the top, 0x00RRGGBB. The same size gives the same picture. */
std::vector<uint32_t> DrawLandscape(int width, int height, Daylight daylight);

} // namespace veskar
