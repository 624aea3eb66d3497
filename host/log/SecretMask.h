/** Keeps what a viewer types out of the log. */
#pragma once

#include <string>

namespace veskar
{

/**
 * Replaces, in place, each typed digit in a line with a star. It knows the lines that carry digits by their texts; any
 * other line stays as it is.
 */
void MaskTypedDigits(std::string& line);

} // namespace veskar
