/**
 * The remote control of a desk TV, from a command line.
 *
 * Exit status: 0 done, 1 the compositor refused (an unknown key, a file that cannot be written), 64 bad usage,
 * 69 no compositor.
 */
#include "RemoteClient.h"
#include "RemoteSocketPath.h"

#include <CLI/CLI.hpp>
#include <chrono>
#include <filesystem>
#include <functional>
#include <iostream>
#include <thread>

namespace
{

constexpr int REFUSED = 1;
constexpr int BAD_USAGE = 64;
constexpr int NO_COMPOSITOR = 69;

using Keys = std::vector<std::string>;

void PressAll(veskar::RemoteClient& remote, const Keys& keys, std::chrono::milliseconds gap)
{
    for (size_t i = 0; i < keys.size(); ++i)
    {
        if (i > 0)
        {
            std::this_thread::sleep_for(gap);
        }
        remote.Ask("press " + keys[i]);
    }
}

/** The compositor's folder is another one, so it is told the whole path. */
std::string WholePath(const std::string& file)
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(file, error);
    if (error)
    {
        throw veskar::RemoteRefusal("\"" + file + "\": " + error.message());
    }
    return path.string();
}

void Print(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
    {
        std::cout << line << "\n";
    }
}

int Run(int argc, char* argv[])
{
    CLI::App app{"The remote control of a desk TV"};
    app.require_subcommand(1);
    app.footer("KEY is a platform name (XF86Back) or the part of it that one would type (back, play, 7).");

    // What to do is known when the command line is read, and done when all of it was right.
    std::function<void(veskar::RemoteClient&)> action;
    Keys keys;
    std::string key;
    std::string file;
    int gap = 20;

    CLI::App* press = app.add_subcommand("press", "Press keys, one after the other");
    press->add_option("KEY", keys)->required();
    press->add_option("--gap", gap, "Milliseconds between two keys")
        ->capture_default_str()
        ->check(CLI::NonNegativeNumber);
    press->callback(
        [&]
        {
            action = [&](auto& remote)
            {
                PressAll(remote, keys, std::chrono::milliseconds(gap));
            };
        });

    for (const auto& [name, help] : {std::pair{"down", "Press a key and hold it"}, {"up", "Let a held key go"}})
    {
        CLI::App* command = app.add_subcommand(name, help);
        command->add_option("KEY", key)->required();
        command->callback(
            [&, name = name]
            {
                action = [&, name](auto& remote)
                {
                    remote.Ask(name + (" " + key));
                };
            });
    }

    CLI::App* shot = app.add_subcommand("shot", "Save what is on the screen");
    shot->add_option("FILE.png", file)->required();
    shot->callback(
        [&]
        {
            action = [&](auto& remote)
            {
                remote.Ask("shot " + WholePath(file));
            };
        });

    for (const auto& [name, help] : {std::pair{"keys", "List every key's platform name"},
                                     {"grabs", "List who holds which key: key, mode, process id/program"}})
    {
        app.add_subcommand(name, help)
            ->callback(
                [&, name = name]
                {
                    action = [name](auto& remote)
                    {
                        Print(remote.Ask(name));
                    };
                });
    }

    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? 0 : BAD_USAGE;
    }
    veskar::RemoteClient remote(veskar::RemoteSocketPath());
    action(remote);
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    try
    {
        return Run(argc, argv);
    }
    catch (const veskar::RemoteRefusal& refusal)
    {
        std::cerr << "veskar-remote: " << refusal.what() << "\n";
        return REFUSED;
    }
    catch (const veskar::RemoteUnreachable& trouble)
    {
        std::cerr << "veskar-remote: " << trouble.what() << "\n";
        return NO_COMPOSITOR;
    }
}
