/**
 * The TV's compositor, which shows the application's window. Only on Wayland is there something to tell: with
 * ELM_DISPLAY set to another display, or in an X session without ELM_DISPLAY, the texts are empty.
 */
#pragma once

#include <string>

namespace veskar
{

/** Why no window of this process can be shown; empty when one can. For use before the toolkit's start. */
std::string MissingCompositor();

/** What has ended the toolkit's connection; empty while it lasts. The toolkit itself tells the main loop to end. */
std::string LostCompositor();

} // namespace veskar
