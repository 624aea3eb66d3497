/** The daemon's account of what it was asked: one line each on standard error. */
#pragma once

#include <string>

namespace veskar
{

void Print(const std::string& line);

/** A text in quotes, control characters escaped, so that it stays on its line. */
std::string Quoted(const std::string& text);

/** What may be told of an answer's text, which may be a PIN: its length, or all of it with VESKAR_LOG_SECRETS=1. */
std::string Secret(const std::string& text);

} // namespace veskar
