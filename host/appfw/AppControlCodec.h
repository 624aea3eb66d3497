/** A service request as a message on the bus: `AppControl(a{sv})`, each value a string or an array of strings. */
#pragma once

#include <optional>
#include <string>

#include "AppControl.h"
#include "Bus.h"

namespace veskar
{

/**
 * The limits of a request, so that a faulty sender cannot block the screen: bytes of a text, elements of an array and
 * keys, and bytes of all keys and values together. A short text counts with the memory that it takes. Each line break
 * and each tab costs the toolkit a line to lay out, and each tab of an array's element, which may be a row of a list,
 * a widget.
 */
constexpr size_t LONGEST_TEXT = 64UL * 1024;
constexpr size_t MOST_BREAKS = 4'000;
constexpr size_t MOST_TABS_OF_ELEMENT = 64;
constexpr size_t MOST_ELEMENTS = 20'000;
constexpr size_t LARGEST_REQUEST = 8UL * 1024 * 1024;
constexpr size_t SMALLEST_TEXT = sizeof(std::string);

constexpr const char* REFUSED_ERROR = "org.tizen.Application1.Error.Refused";

/**
 * Reads the arguments of an AppControl call into `request`. If a key comes twice, the last value counts. Returns why
 * the call is refused, with the key's name, or nothing on success.
 */
std::optional<std::string> DecodeAppControl(const Eldbus_Message* call, app_control_s& request);

/**
 * An AppControl call for the application of that id, to whoever owns `busName`: the id itself, or the unique name of
 * one of its processes. Null when the id or a text of the request is not fit for the bus.
 */
BusMessage EncodeAppControl(const std::string& appId, const std::string& busName, const app_control_s& request);

} // namespace veskar
