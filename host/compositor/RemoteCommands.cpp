#include "RemoteCommands.h"

#include <fstream>
#include <sstream>

namespace veskar
{

namespace
{

/** All of the named keys, or the first name that is none in `unknown`. */
std::vector<const Key*> keysIn(const std::string& words, std::string& unknown)
{
    std::vector<const Key*> keys;
    std::istringstream stream(words);
    for (std::string name; stream >> name;)
    {
        const Key* key = keyByShortName(name);
        if (key == nullptr)
        {
            unknown = name;
            return {};
        }
        keys.push_back(key);
    }
    return keys;
}

/** A command that does something with each of the keys that it names, or with none when one name is unknown. */
RemoteCommand forEachKey(std::function<void(const Key&)> action)
{
    return [action = std::move(action)](const std::string& words, const RemoteAnswer& answer)
    {
        std::string unknown;
        const std::vector<const Key*> keys = keysIn(words, unknown);
        if (keys.empty())
        {
            answer({{}, unknown.empty() ? "which key?" : "unknown key \"" + unknown + "\""});
            return;
        }
        for (const Key* key : keys)
        {
            action(*key);
        }
        answer({});
    };
}

std::string programName(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/comm");
    std::string name;
    std::getline(file, name);
    return name.empty() ? "?" : name;
}

std::string lineOf(const Grab& grab)
{
    pid_t pid = 0;
    wl_client_get_credentials(grab.client, &pid, nullptr, nullptr);
    return std::string(grab.key->name) + " " + nameOf(grab.mode) + " " + std::to_string(pid) + "/" + programName(pid);
}

} // namespace

void setRemoteCommands(RemoteSocket& socket, Seat& seat, const GrabTable& grabs, Screenshots& screenshots)
{
    socket.setCommand("press", forEachKey(
                                   [&seat](const Key& key)
                                   {
                                       seat.inject(key, WL_KEYBOARD_KEY_STATE_PRESSED);
                                       seat.inject(key, WL_KEYBOARD_KEY_STATE_RELEASED);
                                   }));
    socket.setCommand("down", forEachKey([&seat](const Key& key) { seat.inject(key, WL_KEYBOARD_KEY_STATE_PRESSED); }));
    socket.setCommand("up", forEachKey([&seat](const Key& key) { seat.inject(key, WL_KEYBOARD_KEY_STATE_RELEASED); }));
    socket.setCommand("keys",
                      [](const std::string&, const RemoteAnswer& answer)
                      {
                          RemoteReply reply;
                          for (const Key& key : allKeys())
                          {
                              reply.lines.emplace_back(key.name);
                          }
                          answer(reply);
                      });
    socket.setCommand("grabs",
                      [&grabs](const std::string&, const RemoteAnswer& answer)
                      {
                          RemoteReply reply;
                          for (const Grab& grab : grabs.all())
                          {
                              reply.lines.push_back(lineOf(grab));
                          }
                          answer(reply);
                      });
    socket.setCommand("shot",
                      [&screenshots](const std::string& path, const RemoteAnswer& answer)
                      {
                          if (path.empty() || path.front() != '/')
                          {
                              answer({{}, "an absolute path is needed"});
                              return;
                          }
                          screenshots.take(path, [answer](const std::string& error) { answer({{}, error}); });
                      });
}

} // namespace veskar
