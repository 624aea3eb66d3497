/** Requests that do something else than they seem to ask for. */
#pragma once

#include "Request.h"

namespace veskar
{
/** What to tell the sender before `request` is sent, one sentence each. `waits`: the sender waits for its answer. */
Texts Warnings(const Request& request, bool waits);

} // namespace veskar
