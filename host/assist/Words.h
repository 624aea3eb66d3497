/**
 * What the voice guide says in words of its own, in the language that the toolkit was set to; in English where there is
 * no translation (host/assist/po). Any thread.
 */
#pragma once

#include <string>

namespace veskar
{

/** "ticked" or "not ticked". */
std::string TickWord(bool ticked);

/** "2 of 6". */
std::string NumberOf(int number, int count);

/** "page 2 of 3". */
std::string PageOf(int number, int count);

/** "digit 2 of 4". */
std::string DigitOf(int number, int count);

/** "60 %". */
std::string Percent(int number);

} // namespace veskar
