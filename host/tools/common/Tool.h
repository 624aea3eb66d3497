/** What the desk's tools have in common: their exit statuses, and what they say where there is no TV. */
#pragma once

#include <cstdlib>
#include <string>

namespace veskar
{

/** A tool's own are between DONE and NOT_IN_TIME. Those from 64 on are those of sysexits.h. */
namespace ToolStatus
{

inline constexpr int DONE = 0;
inline constexpr int NOT_IN_TIME = 3;
inline constexpr int BAD_USAGE = 64;
inline constexpr int UNAVAILABLE = 69;
inline constexpr int UNKNOWN_ANSWER = 70;
inline constexpr int CANNOT_WRITE = 73;

} // namespace ToolStatus

/** veskar-tv tells whatever runs in its TV where the log is. */
inline bool IsInTv()
{
    return std::getenv("VESKAR_TV_LOG") != nullptr;
}

/** To be added to a line that says what could not be reached; empty in a TV. */
inline std::string HintOfTv()
{
    return IsInTv() ? "" : "; no TV is here: ./tv shell starts one";
}

} // namespace veskar
