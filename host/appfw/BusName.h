/** How an application's id becomes its address on the bus. */
#pragma once

#include <string>

namespace veskar
{

/** The interface of every application of the TV. */
constexpr const char* ApplicationInterface = "org.tizen.Application1";

/** An id is the bus name itself. */
bool IsApplicationId(const char* id);

/** `id` is a bus name: "org.tizen.veskar-app" lives at "/org/tizen/veskar_app". */
std::string ObjectPath(const std::string& id);

/** The id of the running process: VESKAR_APP_ID, or the dialogue application's. */
std::string OwnApplicationId();

/** True for text that may be put into a message: the bus library ends the process on any other. */
bool IsBusText(const char* text);

} // namespace veskar
