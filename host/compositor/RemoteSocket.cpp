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

[[noreturn]] void fail(const std::string& what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

int listenAt(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
    {
        errno = ENAMETOOLONG;
        fail(path);
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0)
    {
        fail("socket");
    }
    unlink(path.c_str());
    if (bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0 || listen(fd, SOMAXCONN) < 0)
    {
        const int reason = errno;
        close(fd);
        errno = reason;
        fail(path);
    }
    return fd;
}

std::string textOf(const RemoteReply& reply)
{
    std::string text;
    for (const std::string& line : reply.lines)
    {
        text += " " + line + "\n";
    }
    return text + (reply.error.empty() ? "ok" : "error " + reply.error) + "\n";
}

} // namespace

/** One client. It lives until the client hangs up, and until the answer to its last command has come. */
class RemoteSocket::Connection : public std::enable_shared_from_this<Connection>
{
public:
    Connection(RemoteSocket& socket, int fd) : m_socket(socket), m_fd(fd) {}

    ~Connection() { disconnect(); }

    bool watch(wl_event_loop* loop)
    {
        m_source = wl_event_loop_add_fd(loop, m_fd, WL_EVENT_READABLE, onReadable, this);
        return m_source != nullptr;
    }

    void disconnect()
    {
        if (m_source != nullptr)
        {
            wl_event_source_remove(m_source);
            m_source = nullptr;
        }
        if (m_fd >= 0)
        {
            close(m_fd);
            m_fd = -1;
        }
    }

    void answer(const RemoteReply& reply)
    {
        m_busy = false;
        const std::string text = textOf(reply);
        // No reply is as long as a socket's buffer: one that does not fit has no reader.
        if (m_fd < 0 ||
            send(m_fd, text.data(), text.size(), MSG_DONTWAIT | MSG_NOSIGNAL) != static_cast<ssize_t>(text.size()))
        {
            hangUp();
            return;
        }
        if (!m_running)
        {
            runLines();
        }
    }

private:
    static int onReadable(int, uint32_t, void* data)
    {
        const auto self = static_cast<Connection*>(data)->shared_from_this();
        char block[4096];
        const ssize_t count = recv(self->m_fd, block, sizeof block, MSG_DONTWAIT);
        if (count <= 0)
        {
            if (count == 0 || (errno != EAGAIN && errno != EINTR))
            {
                self->hangUp();
            }
            return 0;
        }
        self->m_received.append(block, static_cast<size_t>(count));
        self->runLines();
        return 0;
    }

    void runLines()
    {
        m_running = true;
        while (!m_busy && m_fd >= 0)
        {
            const size_t end = m_received.find('\n');
            if (end == std::string::npos)
            {
                break;
            }
            const std::string line = m_received.substr(0, end);
            m_received.erase(0, end + 1);
            m_busy = true;
            m_socket.run(shared_from_this(), line);
        }
        m_running = false;
        if (m_received.size() > LONGEST_LINE)
        {
            hangUp();
        }
    }

    void hangUp()
    {
        disconnect();
        m_socket.drop(this);
    }

    RemoteSocket& m_socket;
    int m_fd;
    wl_event_source* m_source = nullptr;
    std::string m_received;
    bool m_busy = false;    // a command is being answered
    bool m_running = false; // runLines is on the stack
};

RemoteSocket::RemoteSocket(wl_event_loop* loop, const std::string& path)
    : m_loop(loop), m_path(path), m_fd(listenAt(path)),
      m_source(wl_event_loop_add_fd(loop, m_fd, WL_EVENT_READABLE, onConnect, this))
{
}

RemoteSocket::~RemoteSocket()
{
    for (const auto& connection : m_connections)
    {
        connection->disconnect();
    }
    wl_event_source_remove(m_source);
    close(m_fd);
    unlink(m_path.c_str());
}

int RemoteSocket::onConnect(int fd, uint32_t, void* data)
{
    auto& self = *static_cast<RemoteSocket*>(data);
    const int accepted = accept4(fd, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (accepted < 0)
    {
        return 0;
    }
    auto connection = std::make_shared<Connection>(self, accepted);
    if (connection->watch(self.m_loop))
    {
        self.m_connections.push_back(std::move(connection));
    }
    return 0;
}

void RemoteSocket::run(const std::shared_ptr<Connection>& connection, const std::string& line)
{
    const size_t space = line.find(' ');
    const std::string name = line.substr(0, space);
    const std::string words = space == std::string::npos ? "" : line.substr(space + 1);
    const RemoteAnswer answer = [weak = std::weak_ptr<Connection>(connection)](const RemoteReply& reply)
    {
        if (const auto alive = weak.lock())
        {
            alive->answer(reply);
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

void RemoteSocket::drop(const Connection* connection)
{
    m_connections.erase(std::remove_if(m_connections.begin(), m_connections.end(),
                                       [connection](const auto& each) { return each.get() == connection; }),
                        m_connections.end());
}

} // namespace veskar
