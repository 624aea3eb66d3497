// The bytes that a client of the remote control's socket sends, as far as they are known before the compositor acts.

#include "FileDescriptor.h"
#include "Input.h"
#include "remote/RemoteCommands.h"

#include <csignal>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace veskar
{

// The compositor's parts, which do nothing here.

Seat::Seat(weston_compositor* /*compositor*/) {}
Seat::~Seat() = default;
void Seat::Inject(const Key& key, wl_keyboard_key_state /*state*/)
{
    Require(KeyByCode(key.code) == &key, "a key of the remote control");
}

WindowStack::WindowStack(weston_compositor* compositor) : m_compositor(compositor) {}

Routing::Routing(Seat& seat, const GrabTable& grabs, const LateDigits& late, const WindowStack& windows)
    : m_seat(seat), m_grabs(grabs), m_lateDigits(late), m_windows(windows)
{
}
Routing::~Routing() = default;
weston_surface* Routing::HeardBy(const Key& /*key*/) const
{
    return nullptr;
}

bool KeyRouter::IsBoundBy(const wl_client* /*client*/) const
{
    return false;
}
std::vector<KeyRouter::Screen> KeyRouter::Screens() const
{
    return {};
}

Screenshots::~Screenshots() = default;
void Screenshots::Take(const std::string& path, Done done)
{
    Require(path.front() == '/', "a picture's path is absolute");
    done("no picture here");
}

} // namespace veskar

using namespace veskar;

namespace
{

FileDescriptor ConnectTo(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    FileDescriptor client(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    Require(connect(client.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0, "the socket listens");
    return client;
}

/** A reply's lines begin with a space; "ok" or "error" ends it. */
void RequireReplies(const std::string& received)
{
    for (std::size_t start = 0, end = 0; (end = received.find('\n', start)) != std::string::npos; start = end + 1)
    {
        const std::string line = received.substr(start, end - start);
        Require(line[0] == ' ' || line == "ok" || line.rfind("error ", 0) == 0, "a reply is \"" + line + '"');
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static wl_event_loop* loop = wl_event_loop_create();
    static const std::string path = "/tmp/veskar-fuzz." + std::to_string(getpid());
    static const GrabTable grabs;
    static const LateDigits late;
    static const WindowStack windows(nullptr);
    Seat seat(nullptr);
    const Routing routing(seat, grabs, late, windows);
    Screenshots screenshots(nullptr);
    RemoteSocket socket(loop, path);
    SetRemoteCommands(socket, {seat, grabs, routing, screenshots, nullptr});

    Input input(data, size);
    FileDescriptor client = ConnectTo(path);
    std::string received;
    while (!input.Empty())
    {
        // The first byte of a piece is its length, so that a line may come in several.
        const std::string piece = input.Bytes(input.Byte());
        send(client.Get(), piece.data(), piece.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
        wl_event_loop_dispatch(loop, 0);
        char block[65536];
        const ssize_t count = recv(client.Get(), block, sizeof block, MSG_DONTWAIT);
        received.append(block, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    RequireReplies(received);
    return 0;
}
