/** A program's end of the remote control's socket. Calls block. Not thread-safe. */
#pragma once

#include "FileDescriptor.h"

#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

namespace veskar
{

/** No compositor listens at the socket, or it has ended. */
struct RemoteUnreachable : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** The compositor refused the command. The text says why. */
struct RemoteRefusal : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/** The reply did not come in the time that SetPatience gave it. No command can follow. */
struct RemoteSilent : RemoteUnreachable
{
    using RemoteUnreachable::RemoteUnreachable;
};

class RemoteClient
{
public:
    /** Throws RemoteUnreachable. */
    explicit RemoteClient(const std::string& path);

    /** The longest time that a reply may take. Without it, any. */
    void SetPatience(std::chrono::milliseconds patience);

    /** Sends one command line and waits for its reply's lines. Throws RemoteRefusal and RemoteUnreachable. */
    std::vector<std::string> Ask(const std::string& command);

private:
    std::string m_ReadLine();

    FileDescriptor m_socket;
    std::string m_received;
};

} // namespace veskar
