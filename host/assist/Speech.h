/** The desk's voice: Speech Dispatcher, where one is running. */
#pragma once

#include <string>

namespace veskar
{

enum class Turn
{
    /** Interrupts the current sentence and drops those that wait. */
    AtOnce,
    /** After all sentences that wait. */
    Next
};

/**
 * Says `text` in `language` ("el_GR"; empty: the voice's own). Does not block: a separate thread talks to the
 * dispatcher. Any thread.
 */
void Say(std::string text, std::string language, Turn turn);

} // namespace veskar
