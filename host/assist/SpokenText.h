/** What the voice guide says of a text. */
#pragma once

#include <string>
#include <string_view>

namespace veskar
{

/**
 * One line without markup. `text` may be the toolkit's markup or a text as it was given, or both in one sentence. So
 * only tags and entities that the toolkit knows are markup, and everything else is said as it stands: "a < b" is
 * "a < b". A line break, tab or other control character, also as a tag, is a space.
 */
std::string SpokenText(std::string_view text);

} // namespace veskar
