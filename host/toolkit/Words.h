#pragma once

#include <string>
#include <string_view>

namespace veskar
{

/**
 * The markup with what lets no line end within a number or a Korean word, as in "0800 / 123 456" or "2026년에": the
 * toolkit would end one at every space and at every syllable. A number is digits with spaces, hyphens, dashes and
 * slashes between them. What is too long for a line may still be broken.
 */
std::string WithWordsTogether(std::string_view markup);

} // namespace veskar
