/** The result of veskar-mw: JSON lines on standard output, and the exit status. */
#pragma once

#include <cstdint>
#include <string>

namespace veskar
{

namespace ExitStatus
{

inline constexpr int ANSWERED = 0;
inline constexpr int DELIVERED = 0;
inline constexpr int BACK = 1;
inline constexpr int CLOSED = 2;
inline constexpr int TIMED_OUT = 3;
inline constexpr int BAD_USAGE = 64;
inline constexpr int UNAVAILABLE = 69;
inline constexpr int UNKNOWN_ANSWER = 70;

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

/** Each is one line of JSON, without its line end. */
std::string ToJson(const ScreenAnswer& answer);
std::string TaskToJson(const std::string& task, const std::string& action);
std::string MenuPositionToJson(int position);

int StatusOf(const ScreenAnswer& answer);

} // namespace veskar
