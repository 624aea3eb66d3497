/** What the pad is called on the bus and at the compositor. */
#pragma once

namespace veskar
{

constexpr const char* APP_ID = "org.tizen.function-osd";

} // namespace veskar
