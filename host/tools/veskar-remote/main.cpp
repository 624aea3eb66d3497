/** The remote control of a desk TV, from a command line. */
#include "CoreLimit.h"
#include "RemoteClient.h"
#include "RemoteSocketPath.h"
#include "ScreenText.h"
#include "TemporaryFolder.h"
#include "Tool.h"
#include "Waits.h"

#include <CLI/CLI.hpp>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <regex>
#include <thread>

namespace
{

namespace ToolStatus = veskar::ToolStatus;

using Keys = std::vector<std::string>;

template <typename Send>
void SendAll(const Keys& keys, std::chrono::milliseconds gap, Send send)
{
    for (size_t i = 0; i < keys.size(); ++i)
    {
        if (i > 0)
        {
            std::this_thread::sleep_for(gap);
        }
        send(keys[i]);
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
    bool atOnce = false;
    bool shown = false;
    bool gone = false;
    bool still = false;
    std::optional<std::regex> text;
    std::optional<int> uiId;
    double timeout = 10;
    std::string file;
};

/** The picture is a PNG, whatever its name. */
std::string CheckPngName(const std::string& file)
{
    return file == "-" || std::filesystem::path(file).extension() == ".png" ? ""
                                                                            : "\"" + file + "\" does not end in .png";
}

std::regex Pattern(const std::string& text)
{
    try
    {
        return std::regex(text);
    }
    catch (const std::regex_error& error)
    {
        throw CLI::ValidationError("--text", "\"" + text + "\": " + error.what());
    }
}

void AddTimeout(CLI::App& command, Wanted& wanted)
{
    command.add_option("--timeout", wanted.timeout, "Seconds after which to give up, for each key")
        ->capture_default_str()
        ->check(CLI::Range(0.001, 86400.0));
}

void AddWait(CLI::App& app, Wanted& wanted)
{
    CLI::App* wait = app.add_subcommand("wait", "Wait for what is on the screen");
    CLI::Option* shown = wait->add_flag("--shown", wanted.shown, "Until a screen has been drawn");
    CLI::Option* text = wait->add_option_function<std::string>(
                                "--text", [&wanted](const std::string& pattern) { wanted.text = Pattern(pattern); },
                                "Until a screen has been drawn for which the voice guide was handed a text with this "
                                "regular expression in it")
                            ->excludes(shown);
    CLI::Option* gone = wait->add_flag("--gone", wanted.gone, "Until there is none")->excludes(shown)->excludes(text);
    wait->add_flag("--still", wanted.still, "Until nothing moves any more; after the one above if both are given");
    wait->add_option("--ui-id", wanted.uiId, "Only the screen with this id counts");
    AddTimeout(*wait, wanted);
    wait->callback(
        [shown, text, gone, &wanted]
        {
            if (shown->empty() && text->empty() && gone->empty() && !wanted.still)
            {
                throw CLI::ValidationError("wait", "--shown, --text, --gone or --still is needed");
            }
        });
}

void AddCommands(CLI::App& app, Wanted& wanted)
{
    CLI::App* press = app.add_subcommand("press", "Press keys, one after the other");
    press->add_option("KEY", wanted.keys)->required();
    press->add_option("--gap", wanted.gap, "Milliseconds between two keys")
        ->capture_default_str()
        ->check(CLI::NonNegativeNumber);
    press->add_flag("--at-once", wanted.atOnce, "Press each key once, whether or not anybody takes it");
    AddTimeout(*press, wanted);
    AddWait(app, wanted);
    app.add_subcommand("down", "Press a key and hold it")->add_option("KEY", wanted.keys)->required()->expected(1);
    app.add_subcommand("up", "Let a held key go")->add_option("KEY", wanted.keys)->required()->expected(1);
    app.add_subcommand("shot", "Save what is on the screen; - is standard output")
        ->add_option("FILE.png", wanted.file)
        ->required()
        ->check(CheckPngName);
    app.add_subcommand("backdrop", "Choose the programme behind the screens")
        ->add_option("PICTURE", wanted.file, "evening, snow, or a picture's file")
        ->required();
    app.add_subcommand("keys", "List every key's platform name");
    app.add_subcommand("grabs", "List who holds which key: key, mode, process id/program");
    app.require_subcommand(1);
    app.footer(
        "KEY is a platform name (XF86Back) or the part of it that one would type (back, play, 7).\n"
        "press waits until somebody takes the key: a screen takes Return, Back, Exit and digits only when it has\n"
        "been seen.\n\n"
        "Exit status:\n"
        "  0   done\n"
        "  3   nobody took the key, or what was waited for did not come, within --timeout\n"
        "  64  bad usage, or the compositor refused: an unknown key, a file that cannot be read or written\n"
        "  69  no TV");
}

std::chrono::milliseconds Patience(const Wanted& wanted)
{
    return std::chrono::milliseconds(static_cast<long>(wanted.timeout * 1000));
}

void Wait(const Wanted& wanted, veskar::RemoteClient& remote)
{
    veskar::Waits waits(remote, Patience(wanted));
    if (wanted.shown)
    {
        waits.Shown(wanted.uiId);
    }
    if (wanted.text)
    {
        waits.Text(*wanted.text, wanted.uiId);
    }
    if (wanted.gone)
    {
        waits.Gone(wanted.uiId);
    }
    if (wanted.still)
    {
        waits.Still();
    }
}

void Shoot(const std::string& file, veskar::RemoteClient& remote)
{
    if (file != "-")
    {
        remote.Ask("shot " + WholePath(file));
        return;
    }
    const veskar::TemporaryFolder folder;
    const std::string path = folder.Path() + "/screen.png";
    remote.Ask("shot " + path);
    std::cout << std::ifstream(path, std::ios::binary).rdbuf();
}

void Do(const Wanted& wanted, veskar::RemoteClient& remote)
{
    if (wanted.command == "shot")
    {
        Shoot(wanted.file, remote);
    }
    else if (wanted.command == "backdrop")
    {
        const bool isDrawn = wanted.file == "evening" || wanted.file == "snow";
        remote.Ask("backdrop " + (isDrawn ? wanted.file : WholePath(wanted.file)));
    }
    else if (wanted.command == "wait")
    {
        Wait(wanted, remote);
    }
    else if (wanted.command == "press" && !wanted.atOnce)
    {
        veskar::Waits waits(remote, Patience(wanted));
        SendAll(wanted.keys, std::chrono::milliseconds(wanted.gap), [&](const std::string& key) { waits.Press(key); });
    }
    else if (!wanted.keys.empty())
    {
        SendAll(wanted.keys, std::chrono::milliseconds(wanted.gap),
                [&](const std::string& key) { remote.Ask(wanted.command + " " + key); });
    }
    else
    {
        Print(remote.Ask(wanted.command));
    }
}

int Run(int argc, char* argv[])
{
    CLI::App app{"The remote control of a desk TV", "veskar-remote"};
    app.set_version_flag("--version", VESKAR_VERSION);
    Wanted wanted;
    AddCommands(app, wanted);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? ToolStatus::DONE : ToolStatus::BAD_USAGE;
    }
    wanted.command = app.get_subcommands().front()->get_name();
    veskar::RemoteClient remote(veskar::RemoteSocketPath());
    Do(wanted, remote);
    return ToolStatus::DONE;
}

int Fail(int status, const std::string& why)
{
    std::cerr << "veskar-remote: " << why << "\n";
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    veskar::WriteNoCoreDump(); // digits are among the keys
    try
    {
        return Run(argc, argv);
    }
    catch (const veskar::RemoteRefusal& refusal)
    {
        return Fail(ToolStatus::BAD_USAGE, refusal.what());
    }
    catch (const veskar::InVain& trouble)
    {
        return Fail(ToolStatus::NOT_IN_TIME, trouble.what());
    }
    catch (const veskar::RemoteUnreachable& trouble)
    {
        return Fail(ToolStatus::UNAVAILABLE, trouble.what() + veskar::HintOfTv());
    }
    catch (const veskar::NoBus& trouble)
    {
        return Fail(ToolStatus::UNAVAILABLE, trouble.what() + veskar::HintOfTv());
    }
}
