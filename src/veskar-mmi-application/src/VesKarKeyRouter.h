#pragma once

namespace VESKAR_APP
{

/** The key router's name in the registry of the connected Wayland display, or -1 where none is advertised. */
int VesKarKeyRouter_GetId();

} // namespace VESKAR_APP
