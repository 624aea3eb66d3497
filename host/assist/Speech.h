/** The desk's voice: Speech Dispatcher, where one is running. */
#pragma once

#include <string>

namespace veskar
{

enum class Turn
{
    /** Cuts short what is being said and drops what waits. */
    AtOnce,
    /** After everything that waits. */
    Next
};

/**
 * Says `text` in `language` ("el_GR"; empty: the voice's own). Never waits for the voice: a thread of its own talks to
 * it. Any thread.
 */
void Say(std::string text, std::string language, Turn turn);

} // namespace veskar
