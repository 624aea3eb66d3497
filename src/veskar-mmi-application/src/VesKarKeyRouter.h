#pragma once

namespace VESKAR_APP
{

/** The key router's id in the registry of the connected Wayland display, or -1 if there is none. */
int VesKarKeyRouter_GetId();

} // namespace VESKAR_APP
