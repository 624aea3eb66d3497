#include "RemoteSocket.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace veskar
{

namespace
{

constexpr size_t LONGEST_LINE = 16384;

[[noreturn]] void Fail(const std::string& what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

FileDescriptor ListenAt(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
    {
        errno = ENAMETOOLONG;
        Fail(path);
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    FileDescriptor listening(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!listening)
    {
        Fail("socket");
    }
    unlink(path.c_str());
    if (bind(listening.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0 ||
        listen(listening.Get(), SOMAXCONN) < 0)
    {
        Fail(path);
    }
    return listening;
}

/** The folder of the socket keeps others out already; this holds where somebody has opened the folder. */
bool IsOfThisUser(const FileDescriptor& client)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(client.Get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           (peer.uid == geteuid() || peer.uid == 0);
}

std::string TextOf(const RemoteReply& reply)
{
    std::string text;
    for (const std::string& line : reply.lines)
    {
        text += " " + line + "\n";
    }
    return text + (reply.error.empty() ? "ok" : "error " + reply.error) + "\n";
}

} // namespace

/** One client's connection. It lives until the client disconnects; an answer that comes later is dropped. */
class RemoteSocket::Connection : public std::enable_shared_from_this<Connection>
{
public:
    Connection(RemoteSocket& socket, FileDescriptor client) : m_socket(socket), m_client(std::move(client)) {}

    bool Watch(wl_event_loop* loop)
    {
        m_source.reset(wl_event_loop_add_fd(loop, m_client.Get(), WL_EVENT_READABLE, s_OnReadable, this));
        return m_source != nullptr;
    }

    void Disconnect()
    {
        m_source.reset();
        m_client.Close();
    }

    void Answer(const RemoteReply& reply)
    {
        m_busy = false;
        const std::string text = TextOf(reply);
        // Every reply is shorter than a socket's buffer, so the client of one that does not fit has stopped reading.
        if (!m_client || send(m_client.Get(), text.data(), text.size(), MSG_DONTWAIT | MSG_NOSIGNAL) !=
                             static_cast<ssize_t>(text.size()))
        {
            m_HangUp();
            return;
        }
        if (!m_running)
        {
            m_RunLines();
        }
    }

private:
    static int s_OnReadable(int, uint32_t, void* data)
    {
        const auto self = static_cast<Connection*>(data)->shared_from_this();
        char block[4096];
        const ssize_t count = recv(self->m_client.Get(), block, sizeof block, MSG_DONTWAIT);
        if (count <= 0)
        {
            if (count == 0 || (errno != EAGAIN && errno != EINTR))
            {
                self->m_HangUp();
            }
            return 0;
        }
        self->m_received.append(block, static_cast<size_t>(count));
        self->m_RunLines();
        return 0;
    }

    void m_RunLines()
    {
        m_running = true;
        while (!m_busy && m_client)
        {
            const size_t end = m_received.find('\n');
            if (end == std::string::npos)
            {
                break;
            }
            const std::string line = m_received.substr(0, end);
            m_received.erase(0, end + 1);
            m_busy = true;
            m_socket.m_Run(shared_from_this(), line);
        }
        m_running = false;
        if (m_received.size() > LONGEST_LINE)
        {
            m_HangUp();
        }
    }

    void m_HangUp()
    {
        Disconnect();
        m_socket.m_Drop(this);
    }

    RemoteSocket& m_socket;
    FileDescriptor m_client;
    EventSource m_source;
    std::string m_received;
    bool m_busy = false;    // a command is being answered
    bool m_running = false; // m_RunLines is on the stack
};

RemoteSocket::RemoteSocket(wl_event_loop* loop, const std::string& path)
    : m_loop(loop), m_path(path), m_socket(ListenAt(path)),
      m_source(wl_event_loop_add_fd(loop, m_socket.Get(), WL_EVENT_READABLE, s_OnConnect, this))
{
    if (!m_source)
    {
        Fail("event loop");
    }
}

RemoteSocket::~RemoteSocket()
{
    for (const auto& connection : m_connections)
    {
        connection->Disconnect();
    }
    unlink(m_path.c_str());
}

int RemoteSocket::s_OnConnect(int fd, uint32_t, void* data)
{
    auto& self = *static_cast<RemoteSocket*>(data);
    FileDescriptor client(accept4(fd, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!client || !IsOfThisUser(client))
    {
        return 0;
    }
    auto connection = std::make_shared<Connection>(self, std::move(client));
    if (connection->Watch(self.m_loop))
    {
        self.m_connections.push_back(std::move(connection));
    }
    return 0;
}

void RemoteSocket::m_Run(const std::shared_ptr<Connection>& connection, const std::string& line)
{
    const size_t space = line.find(' ');
    const std::string name = line.substr(0, space);
    const std::string words = space == std::string::npos ? "" : line.substr(space + 1);
    const RemoteAnswer answer = [weak = std::weak_ptr<Connection>(connection)](const RemoteReply& reply)
    {
        if (const auto alive = weak.lock())
        {
            alive->Answer(reply);
        }
    };
    const auto command = m_commands.find(name);
    if (command == m_commands.end())
    {
        answer({{}, "unknown command \"" + name + "\""});
        return;
    }
    command->second(words, answer);
}

void RemoteSocket::m_Drop(const Connection* connection)
{
    m_connections.erase(std::remove_if(m_connections.begin(), m_connections.end(),
                                       [connection](const auto& each) { return each.get() == connection; }),
                        m_connections.end());
}

} // namespace veskar
