#pragma once

#include <string>
#include <string_view>

namespace veskar
{

/**
 * The markup with the spaces inside numbers unbreakable, so that no line ends within "0800 / 123 456". A number is
 * digits with spaces, hyphens, dashes and slashes between them; one that is too long for a line may still be broken.
 */
std::string WithNumbersTogether(std::string_view markup);

} // namespace veskar
