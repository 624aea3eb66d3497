/**
 * The socket of the remote control: commands in, replies out, one line each.
 *
 * A reply is any number of lines that start with a space, then a line "ok" or "error WHAT". A client may send its next
 * command before the reply to the last one. Commands of one client are executed one after the other. A client of
 * another user than the compositor's, and not of root, is disconnected.
 */
#pragma once

#include "FileDescriptor.h"
#include "weston/EventSource.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace veskar
{

struct RemoteReply
{
    std::vector<std::string> lines;
    std::string error; // empty when the command succeeded
};

/** Must be called once, immediately or later. Does nothing when the client has disconnected. */
using RemoteAnswer = std::function<void(const RemoteReply&)>;

/** `words` is what follows the command's name in its line. */
using RemoteCommand = std::function<void(const std::string& words, const RemoteAnswer& answer)>;

class RemoteSocket
{
public:
    /** Replaces a socket that is left at `path`. Throws std::system_error when it cannot listen there. */
    RemoteSocket(wl_event_loop* loop, const std::string& path);
    ~RemoteSocket();

    RemoteSocket(const RemoteSocket&) = delete;
    RemoteSocket& operator=(const RemoteSocket&) = delete;

    void SetCommand(const std::string& name, RemoteCommand command) { m_commands[name] = std::move(command); }

private:
    class Connection;

    static int s_OnConnect(int fd, uint32_t mask, void* self);
    void m_Run(const std::shared_ptr<Connection>& connection, const std::string& line);
    void m_Drop(const Connection* connection);

    wl_event_loop* m_loop;
    std::string m_path;
    FileDescriptor m_socket;
    EventSource m_source;
    std::map<std::string, RemoteCommand> m_commands;
    std::vector<std::shared_ptr<Connection>> m_connections;
};

} // namespace veskar
