#include "RemoteClient.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>

namespace veskar
{

namespace
{

constexpr const char* REFUSED = "error ";

FileDescriptor ConnectTo(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path)
    {
        throw RemoteUnreachable(path.empty() ? "no compositor is known" : path + ": the name is too long");
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    FileDescriptor connected(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (!connected || connect(connected.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0)
    {
        throw RemoteUnreachable(path + ": " + std::strerror(errno));
    }
    return connected;
}

} // namespace

RemoteClient::RemoteClient(const std::string& path) : m_socket(ConnectTo(path)) {}

void RemoteClient::SetPatience(std::chrono::milliseconds patience)
{
    timeval time{};
    time.tv_sec = patience.count() / 1000;
    time.tv_usec = patience.count() % 1000 * 1000;
    setsockopt(m_socket.Get(), SOL_SOCKET, SO_RCVTIMEO, &time, sizeof time);
}

std::vector<std::string> RemoteClient::Ask(const std::string& command)
{
    if (command.find('\n') != std::string::npos)
    {
        throw RemoteRefusal("a command is one line");
    }
    const std::string line = command + "\n";
    if (send(m_socket.Get(), line.data(), line.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(line.size()))
    {
        throw RemoteUnreachable("the compositor has gone");
    }
    std::vector<std::string> lines;
    for (;;)
    {
        const std::string reply = m_ReadLine();
        if (reply == "ok")
        {
            return lines;
        }
        if (reply.compare(0, std::strlen(REFUSED), REFUSED) == 0)
        {
            throw RemoteRefusal(reply.substr(std::strlen(REFUSED)));
        }
        lines.push_back(reply.substr(1));
    }
}

std::string RemoteClient::m_ReadLine()
{
    size_t end;
    while ((end = m_received.find('\n')) == std::string::npos)
    {
        char block[4096];
        const ssize_t count = recv(m_socket.Get(), block, sizeof block, 0);
        if (count < 0 && errno == EAGAIN)
        {
            throw RemoteSilent("the compositor does not answer");
        }
        if (count <= 0)
        {
            throw RemoteUnreachable("the compositor has gone");
        }
        m_received.append(block, static_cast<size_t>(count));
    }
    std::string line = m_received.substr(0, end);
    m_received.erase(0, end + 1);
    return line;
}

} // namespace veskar
