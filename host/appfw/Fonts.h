/** The TV's fonts. */
#pragma once

#include <string>

namespace veskar
{

/** The families of the TV that are not installed, separated by commas; empty when all are. */
std::string MissingFonts();

} // namespace veskar
