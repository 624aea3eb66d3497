/** The daemon's log: one line on standard error for each thing that it was asked. */
#pragma once

#include <string>

namespace veskar
{

void Print(const std::string& line);

/** A text in quotes with its control characters escaped, so that it stays on one line. */
std::string Quoted(const std::string& text);

/** An answer's text for the log. It may be a PIN: only its length, or all of it with VESKAR_LOG_SECRETS=1. */
std::string Secret(const std::string& text);

} // namespace veskar
