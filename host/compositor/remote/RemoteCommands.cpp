#include "RemoteCommands.h"

#include <fstream>
#include <sstream>

namespace veskar
{

namespace
{

/** The named keys. If one of the names is unknown: no keys, and that name in `unknown`. */
std::vector<const Key*> KeysIn(const std::string& words, std::string& unknown)
{
    std::vector<const Key*> keys;
    std::istringstream stream(words);
    for (std::string name; stream >> name;)
    {
        const Key* key = KeyByShortName(name);
        if (key == nullptr)
        {
            unknown = name;
            return {};
        }
        keys.push_back(key);
    }
    return keys;
}

/** A command that runs `action` for each key that it names, or for none of them when one name is unknown. */
RemoteCommand ForEachKey(std::function<void(const Key&)> action)
{
    return [action = std::move(action)](const std::string& words, const RemoteAnswer& answer)
    {
        std::string unknown;
        const std::vector<const Key*> keys = KeysIn(words, unknown);
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

std::string ProgramName(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/comm");
    std::string name;
    std::getline(file, name);
    return name.empty() ? "?" : name;
}

/** Process id/program. */
std::string NameOf(pid_t pid)
{
    return std::to_string(pid) + "/" + ProgramName(pid);
}

std::string NameOf(wl_client* client)
{
    pid_t pid = 0;
    wl_client_get_credentials(client, &pid, nullptr, nullptr);
    return NameOf(pid);
}

std::string LineOf(const Grab& grab)
{
    return std::string(grab.key->name) + " " + NameOf(grab.mode) + " " + NameOf(grab.client);
}

const char* NameOf(Reception reception)
{
    switch (reception)
    {
    case Reception::Nobody:
        return "nobody";
    case Reception::HeldBack:
        return "held back";
    case Reception::Taken:
        return "taken";
    }
    return "unknown";
}

/** What becomes of a key that is down. A client without a binding to the router says nothing of it. */
void AskWhoTakes(const Key& key, const Routing& routing, KeyRouter* router, const AwaitedPresses::Told& told)
{
    const weston_surface* surface = routing.HeardBy(key);
    if (surface == nullptr || surface->resource == nullptr)
    {
        told(Reception::Nobody);
        return;
    }
    wl_client* client = wl_resource_get_client(surface->resource);
    if (router == nullptr || !router->IsBoundBy(client))
    {
        told(Reception::Taken);
        return;
    }
    router->Presses().Await(client, key, told);
}

RemoteCommand Offer(const RemoteParts& parts)
{
    return [parts](const std::string& name, const RemoteAnswer& answer)
    {
        const Key* key = KeyByShortName(name);
        if (key == nullptr)
        {
            answer({{}, "unknown key \"" + name + "\""});
            return;
        }
        parts.seat.Inject(*key, WL_KEYBOARD_KEY_STATE_PRESSED);
        AskWhoTakes(*key, parts.routing, parts.router,
                    [answer](Reception reception) {
                        answer({{NameOf(reception)}, ""});
                    });
        parts.seat.Inject(*key, WL_KEYBOARD_KEY_STATE_RELEASED);
    };
}

RemoteCommand AwaitTaken(TakenKeys& taken)
{
    return [&taken](const std::string&, const RemoteAnswer& answer)
    {
        taken.Await(
            [answer](const std::vector<TakenKey>& keys)
            {
                RemoteReply reply;
                for (const TakenKey& key : keys)
                {
                    reply.lines.push_back(std::to_string(key.pressed) + " " + key.key->name + " " + NameOf(key.client));
                }
                answer(reply);
            });
    };
}

RemoteCommand ListScreens(const KeyRouter* router)
{
    return [router](const std::string&, const RemoteAnswer& answer)
    {
        RemoteReply reply;
        for (const KeyRouter::Screen& screen : router != nullptr ? router->Screens() : std::vector<KeyRouter::Screen>())
        {
            reply.lines.push_back(std::to_string(screen.uiId) + " " + NameOf(screen.client));
        }
        answer(reply);
    };
}

RemoteCommand ListKeys()
{
    return [](const std::string&, const RemoteAnswer& answer)
    {
        RemoteReply reply;
        for (const Key& key : AllKeys())
        {
            reply.lines.emplace_back(key.name);
        }
        answer(reply);
    };
}

RemoteCommand ListGrabs(const GrabTable& grabs)
{
    return [&grabs](const std::string&, const RemoteAnswer& answer)
    {
        RemoteReply reply;
        for (const Grab& grab : grabs.All())
        {
            reply.lines.push_back(LineOf(grab));
        }
        answer(reply);
    };
}

RemoteCommand TakeShot(Screenshots& screenshots)
{
    return [&screenshots](const std::string& path, const RemoteAnswer& answer)
    {
        if (path.empty() || path.front() != '/')
        {
            answer({{}, "an absolute path is needed"});
            return;
        }
        screenshots.Take(path, [answer](const std::string& error) { answer({{}, error}); });
    };
}

RemoteCommand ChooseBackdrop(Backdrop& backdrop)
{
    return [&backdrop](const std::string& name, const RemoteAnswer& answer)
    {
        backdrop.Choose(name, [answer](const std::string& error) { answer({{}, error}); });
    };
}

} // namespace

void SetRemoteCommands(RemoteSocket& socket, const RemoteParts& parts)
{
    Seat& seat = parts.seat;
    const auto down = [&seat, &moments = parts.moments](const Key& key)
    {
        moments.Key(key.name);
        seat.Inject(key, WL_KEYBOARD_KEY_STATE_PRESSED);
    };
    const auto up = [&seat](const Key& key)
    {
        seat.Inject(key, WL_KEYBOARD_KEY_STATE_RELEASED);
    };
    const auto press = [down, up](const Key& key)
    {
        down(key);
        up(key);
    };
    socket.SetCommand("press", ForEachKey(press));
    socket.SetCommand("down", ForEachKey(down));
    socket.SetCommand("up", ForEachKey(up));
    socket.SetCommand("keys", ListKeys());
    socket.SetCommand("grabs", ListGrabs(parts.grabs));
    socket.SetCommand("offer", Offer(parts));
    socket.SetCommand("taken", AwaitTaken(parts.taken));
    socket.SetCommand("screens", ListScreens(parts.router));
    socket.SetCommand("moments",
                      [&moments = parts.moments](const std::string&, const RemoteAnswer& answer) {
                          answer({moments.Take(), ""});
                      });
    socket.SetCommand("shot", TakeShot(parts.screenshots));
    socket.SetCommand("backdrop", ChooseBackdrop(parts.backdrop));
}

} // namespace veskar
