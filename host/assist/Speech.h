/** The desk's voice: Speech Dispatcher, where one is running. */
#pragma once

#include <string>

namespace veskar
{

/**
 * Says `text` in `language` ("el_GR"; empty: the voice's own), cutting short what is being said. Never waits for
 * the voice: a thread of its own talks to it, and of sentences that come faster than that thread the last is said. Any
 * thread.
 */
void Say(std::string text, std::string language);

} // namespace veskar
