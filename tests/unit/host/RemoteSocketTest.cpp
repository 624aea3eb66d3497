#include "remote/RemoteSocket.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>

namespace
{

using namespace veskar;

/** Whether a client of that user who sends this gets a reply. */
bool IsHeard(wl_event_loop* loop, const std::string& path, uid_t user, const std::string& text = "hello\n")
{
    const pid_t child = fork();
    if (child == 0)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(address.sun_path, sizeof address.sun_path - 1);
        char reply = 0;
        const int client = socket(AF_UNIX, SOCK_STREAM, 0);
        const bool sent = setuid(user) == 0 &&
                          connect(client, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 &&
                          send(client, text.data(), text.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(text.size());
        _exit(sent && read(client, &reply, 1) == 1 ? 0 : 1);
    }
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0)
    {
        wl_event_loop_dispatch(loop, 10);
    }
    return status == 0;
}

TEST(RemoteSocketTest, AClientOfAnotherUserOrWithoutAnEndOfTheLineIsDisconnectedWithoutAReply)
{
    const std::unique_ptr<wl_event_loop, FreeWith<wl_event_loop_destroy>> loop(wl_event_loop_create());
    const std::string path = "/tmp/veskar-remote-test." + std::to_string(getpid());
    RemoteSocket socket(loop.get(), path);
    socket.SetCommand("hello", [](const std::string&, const RemoteAnswer& answer) { answer({}); });
    chmod(path.c_str(), 0777);
    EXPECT_TRUE(IsHeard(loop.get(), path, geteuid()));
    EXPECT_FALSE(IsHeard(loop.get(), path, geteuid(), std::string(40'000, 'x') + "\n"));
    if (geteuid() != 0)
    {
        GTEST_SKIP() << "only root can be another user";
    }
    EXPECT_FALSE(IsHeard(loop.get(), path, 65534));
}

} // namespace
