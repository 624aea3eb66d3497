/** The toolkit's start in a program of the TV. */
#pragma once

#include <string>

namespace veskar
{

/** Must be called before anything else of the toolkit's libraries, the bus library included. Main thread. */
void PrepareToolkit();

/** Returns why the toolkit did not start; empty when it did and elm_shutdown has to follow. */
std::string StartToolkit(int argc, char** argv);

/** Puts the TV's theme before the toolkit's own. A log line tells of an unusable theme. */
void LoadTheme();

} // namespace veskar
