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
#include <iostream>
#include <thread>

namespace
{

constexpr int REFUSED = 1;
constexpr int BAD_USAGE = 64;
constexpr int NO_COMPOSITOR = 69;

using Keys = std::vector<std::string>;

void SendAll(veskar::RemoteClient& remote, const std::string& command, const Keys& keys, std::chrono::milliseconds gap)
{
    for (size_t i = 0; i < keys.size(); ++i)
    {
        if (i > 0)
        {
            std::this_thread::sleep_for(gap);
        }
        remote.Ask(command + " " + keys[i]);
    }
}

/** The compositor has another working folder, so it needs the whole path. */
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

/** The parsed command line. A sub-command has the name of the compositor's command. */
struct Wanted
{
    std::string command;
    Keys keys;
    int gap = 20;
    std::string file;
};

void AddCommands(CLI::App& app, Wanted& wanted)
{
    CLI::App* press = app.add_subcommand("press", "Press keys, one after the other");
    press->add_option("KEY", wanted.keys)->required();
    press->add_option("--gap", wanted.gap, "Milliseconds between two keys")
        ->capture_default_str()
        ->check(CLI::NonNegativeNumber);
    app.add_subcommand("down", "Press a key and hold it")->add_option("KEY", wanted.keys)->required()->expected(1);
    app.add_subcommand("up", "Let a held key go")->add_option("KEY", wanted.keys)->required()->expected(1);
    app.add_subcommand("shot", "Save what is on the screen")->add_option("FILE.png", wanted.file)->required();
    app.add_subcommand("keys", "List every key's platform name");
    app.add_subcommand("grabs", "List who holds which key: key, mode, process id/program");
    app.require_subcommand(1);
    app.footer("KEY is a platform name (XF86Back) or the part of it that one would type (back, play, 7).");
}

void Do(const Wanted& wanted, veskar::RemoteClient& remote)
{
    if (wanted.command == "shot")
    {
        remote.Ask("shot " + WholePath(wanted.file));
    }
    else if (!wanted.keys.empty())
    {
        SendAll(remote, wanted.command, wanted.keys, std::chrono::milliseconds(wanted.gap));
    }
    else
    {
        Print(remote.Ask(wanted.command));
    }
}

int Run(int argc, char* argv[])
{
    CLI::App app{"The remote control of a desk TV"};
    Wanted wanted;
    AddCommands(app, wanted);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? 0 : BAD_USAGE;
    }
    wanted.command = app.get_subcommands().front()->get_name();
    veskar::RemoteClient remote(veskar::RemoteSocketPath());
    Do(wanted, remote);
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
