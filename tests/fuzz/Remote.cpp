// The bytes that a client of the remote control's socket sends, with commands that answer at once or never.

#include "FileDescriptor.h"
#include "Input.h"
#include "KeyTable.h"
#include "remote/RemoteSocket.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace veskar;

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static wl_event_loop* loop = wl_event_loop_create();
    sockaddr_un address{AF_UNIX, "/tmp/veskar-fuzz.remote"};
    RemoteSocket socket(loop, address.sun_path);
    RemoteAnswer unanswered;
    socket.SetCommand("press",
                      [](const std::string& words, const RemoteAnswer& answer)
                      {
                          const Key* key = KeyByShortName(words);
                          answer({{key != nullptr ? key->name : "none"}, key != nullptr ? "" : words});
                      });
    socket.SetCommand("later", [&](const std::string&, const RemoteAnswer& answer) { unanswered = answer; });

    FileDescriptor client(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    Require(connect(client.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0, "the socket listens");
    std::string received;
    for (Input input(data, size); !input.Empty();)
    {
        // The first byte of a piece is its length, so that a line may come in several.
        const std::string piece = input.Bytes(input.Byte());
        send(client.Get(), piece.data(), piece.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
        wl_event_loop_dispatch(loop, 0);
        if (unanswered && input.Byte() % 2 != 0)
        {
            std::exchange(unanswered, nullptr)({});
        }
        char block[65536];
        received.append(block, std::max<ssize_t>(recv(client.Get(), block, sizeof block, MSG_DONTWAIT), 0));
    }
    for (std::size_t start = 0, end = 0; (end = received.find('\n', start)) != std::string::npos; start = end + 1)
    {
        const std::string line = received.substr(start, end - start);
        Require(line[0] == ' ' || line == "ok" || line.rfind("error ", 0) == 0, "a reply is \"" + line + '"');
    }
    client.Close();
    wl_event_loop_dispatch(loop, 0);
    return 0;
}
