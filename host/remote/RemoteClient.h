/** A program's end of the remote control's socket. Calls block. Not thread-safe. */
#pragma once

#include "FileDescriptor.h"

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

class RemoteClient
{
public:
    /** Throws RemoteUnreachable. */
    explicit RemoteClient(const std::string& path);

    /** Sends one command line and waits for its reply's lines. Throws RemoteRefusal and RemoteUnreachable. */
    std::vector<std::string> Ask(const std::string& command);

private:
    std::string m_ReadLine();

    FileDescriptor m_socket;
    std::string m_received;
};

} // namespace veskar
