/** The result of veskar-mw: JSON lines on standard output, and the exit status. */
#pragma once

#include "Request.h"
#include "Tool.h"

#include <cstdint>
#include <string>

namespace veskar
{

namespace ExitStatus
{

inline constexpr int ANSWERED = ToolStatus::DONE;
inline constexpr int DELIVERED = ToolStatus::DONE;
inline constexpr int BACK = 1;
inline constexpr int CLOSED = 2;
inline constexpr int TIMED_OUT = ToolStatus::NOT_IN_TIME;
inline constexpr int BAD_USAGE = ToolStatus::BAD_USAGE;
inline constexpr int UNAVAILABLE = ToolStatus::UNAVAILABLE;
inline constexpr int UNKNOWN_ANSWER = ToolStatus::UNKNOWN_ANSWER;

} // namespace ExitStatus

struct ScreenAnswer
{
    std::int32_t uiId = 0;
    std::uint8_t sourceId = 0;
    std::int32_t kind = 0;
    std::uint8_t button = 0;
    std::uint8_t item = 0;
    std::string data;
};

/**
 * Each is one line of JSON, without its line end. An answer has "label" and "row" too where the request gave the button
 * or the row a text and the number is that of one only.
 */
std::string ToJson(const ScreenAnswer& answer, const Request& request);
std::string TaskToJson(const std::string& task, const std::string& action);
std::string MenuPositionToJson(int position);

/**
 * Every kind of screen for programs: its type and, for each option, the request's key, the encoding (text, number, flag
 * or list) and a number's default.
 */
std::string KindsToJson();

int StatusOf(const ScreenAnswer& answer);

} // namespace veskar
