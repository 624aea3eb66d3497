/** Where the remote control's socket is, for the compositor that listens and the tools that connect. */
#pragma once

#include <cstdlib>
#include <string>

namespace veskar
{

/** $VESKAR_REMOTE_SOCKET, else "veskar-remote" in the runtime directory; empty when neither is known. */
inline std::string RemoteSocketPath()
{
    if (const char* path = std::getenv("VESKAR_REMOTE_SOCKET"))
    {
        return path;
    }
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    return runtime == nullptr ? "" : std::string(runtime) + "/veskar-remote";
}

} // namespace veskar
