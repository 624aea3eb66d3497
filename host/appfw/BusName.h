/** What the bus takes as an application's id and as text. */
#pragma once

#include <string>

namespace veskar
{

/** An id is the bus name itself. */
bool IsApplicationId(const char* id);

/** The id of the running process: VESKAR_APP_ID, or the dialogue application's. */
std::string OwnApplicationId();

/** True for text that may be put into a message: the bus library ends the process on any other. */
bool IsBusText(const std::string& text);

} // namespace veskar
