#include "CommandLine.h"

#include "Nearest.h"
#include "Report.h"
#include "ScreenKinds.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>

namespace veskar
{
namespace
{
constexpr auto DESCRIPTION = "Plays the middleware: asks the application for a screen and prints the answer.";

constexpr auto FOOTER =
    R"(A text may be anything, also empty or with a "-" in front: --title="" or --title "-x". An answer is one line of JSON on
standard output; beside the numbers "label" and "row" repeat the texts of the button and the row.

Exit status:
  0   answered; or a progress has come to the end of its lines; or taken by the application, where no answer comes
      (close, sequence, --no-wait, a screen or menu position that is not known, of which a warning tells)
  1   the viewer pressed Back
  2   closed without an answer: by Exit, a close request, another screen, or the screen's own time-out
  3   no answer within --timeout
  64  bad usage, or the application refused the request
  69  no bus, no application, or the application went away without an answer
  70  an answer of a kind that is not known

Several requests may wait at once without disturbing each other. Of two with the same ids the first is answered as
closed when the second takes its place; a progress screen updated in place answers everybody who waits for it.)";

Texts Lines(const std::string& fileName)
{
    std::ifstream file;
    std::istream& input = fileName == "-" ? std::cin : file;
    if (fileName != "-")
    {
        file.open(fileName);
    }
    Texts lines;
    for (std::string line; std::getline(input, line);)
    {
        lines.push_back(line);
    }
    // Opening a folder succeeds; reading its first line fails.
    if (input.bad() || (fileName != "-" && !file.is_open()))
    {
        throw CLI::ValidationError(fileName, "cannot be read");
    }
    return lines;
}

/** Refuses what the library would accept too: nan, and numbers with another base than ten. */
std::string CheckDecimal(const std::string& text)
{
    const std::size_t digits = text.find_first_not_of("+-");
    const bool otherBase =
        digits != std::string::npos && text[digits] == '0' && text.size() > digits + 1 && text[digits + 1] != '.';
    const bool decimal = !otherBase && text.find_first_not_of("+-.0123456789") == std::string::npos;
    return decimal ? "" : "\"" + text + "\" is not a decimal number";
}

/** Sets the field's default in the request; the option replaces it. */
void AddField(CLI::App& kind, const Field& field, Request& request)
{
    const std::string key = field.key;
    switch (field.encoding)
    {
    case Encoding::Text:
        request.Set(key, std::string{});
        kind.add_option_function<std::string>(
            field.option, [&request, key](const std::string& text) { request.Set(key, text); }, field.help);
        break;
    case Encoding::Number:
        request.SetNumber(key, field.defaultNumber);
        kind.add_option_function<int>(
                field.option, [&request, key](int number) { request.SetNumber(key, number); }, field.help)
            ->default_str(std::to_string(field.defaultNumber))
            ->check(CheckDecimal)
            ->check(CLI::Range(0, field.highestNumber));
        break;
    case Encoding::Flag:
        request.SetFlag(key, false);
        kind.add_flag_callback(
            field.option, [&request, key] { request.SetFlag(key, true); }, field.help);
        break;
    case Encoding::List:
        request.Set(key, Texts{});
        kind.add_option_function<Texts>(
                field.option, [&request, key](const Texts& texts) { request.Set(key, texts); }, field.help)
            ->type_size(1)
            ->allow_extra_args(false);
        break;
    case Encoding::ListFromFile:
        // Options are handled in the order in which they were added, so the elements given one by one come first.
        kind.add_option_function<std::string>(
                field.option, [&request, key](const std::string& file) { request.Append(key, Lines(file)); },
                field.help)
            ->type_name("FILE");
        break;
    }
}

/** The options that hold for every kind. */
struct General
{
    int uiId = 1;
    int sourceId = 255;
    double timeout = 120;
    bool noWait = false;
};

/** Returns the option that excludes the wait for an answer. */
CLI::Option* AddGeneral(CLI::App& app, General& general)
{
    constexpr double SHORTEST = 1e-3;
    constexpr double LONGEST = 1e9;
    app.add_option("--ui-id", general.uiId, "The screen's id")->capture_default_str()->check(CheckDecimal);
    app.add_option("--source-id", general.sourceId, "Who asks: 254 privileged, 255 normal, else the access module")
        ->capture_default_str()
        ->check(CheckDecimal)
        ->check(CLI::Range(0, 255));
    app.add_option("--timeout", general.timeout, "Seconds to wait for the answer")
        ->capture_default_str()
        ->check(CheckDecimal)
        ->check(CLI::Range(SHORTEST, LONGEST));
    return app.add_flag("--no-wait", general.noWait, "Do not wait for the answer");
}

/**
 * One request for each kind, by its name; the sub-command's options fill it in. A map, because the options keep
 * references to them.
 */
using Requests = std::map<std::string, Request>;
constexpr auto RAW = "raw";

void AddScreens(CLI::App& app, Requests& requests)
{
    for (const ScreenKind& kind : ScreenKinds())
    {
        CLI::App* command = app.add_subcommand(kind.name, kind.help);
        Request& request = requests[kind.name] = Request::Screen(kind.uiType);
        for (const Field& field : kind.fields)
        {
            AddField(*command, field, request);
        }
    }
}

void AddFeed(CLI::App& app, CLI::Option* noWait, std::string& file)
{
    app.get_subcommand("progress")
        ->add_option("--percent-from", file,
                     "Moves on with each line: 10 is a percentage, # text another text; - is standard input. After the "
                     "last line it is closed, or with a button waits for it")
        ->type_name("FILE")
        ->check([](const std::string& name) { return name == "-" ? "" : CLI::ExistingFile(name); })
        ->excludes(noWait);
}

void AddOthers(CLI::App& app, Requests& requests)
{
    app.add_subcommand("close", "Close the screen with this ui id; 0: whichever is shown");
    requests["close"] = Request::Screen("ui_type_close");

    app.add_subcommand("sequence", "A request that does nothing");
    requests["sequence"] = Request::Sequence();

    Request& menu = requests["menu"];
    app.add_subcommand("menu", "Open a menu; prints what is asked of the context manager and the middleware for it")
        ->add_option_function<std::string>(
            "POSITION", [&menu](const std::string& position) { menu = Request::Menu(position); }, "Which one")
        ->check(CLI::IsMember({"veskar_menu", "veskar_info", "veskar_add_op", "veskar_delete_op"}))
        ->required();

    Request& raw = requests[RAW];
    app.add_subcommand(RAW,
                       "Exactly these values; waits if they ask for a known kind of screen, with the ids among them")
        ->add_option_function<Texts>(
            "KEY=VALUE",
            [&raw](const Texts& words)
            {
                try
                {
                    raw = Request::Raw(words);
                }
                catch (const std::invalid_argument& error)
                {
                    throw CLI::ValidationError(RAW, error.what());
                }
            },
            "A text, or with KEY[]=VALUE one more element of a list")
        ->required();
}

/** Whether the word is an option, of any kind, whose value is the next word. */
bool AwaitsValue(const CLI::App& app, const std::string& word)
{
    if (word.rfind("--", 0) != 0)
    {
        return false;
    }
    auto apps = app.get_subcommands([](const CLI::App*) { return true; });
    apps.push_back(&app);
    return std::any_of(apps.begin(), apps.end(),
                       [&word](const CLI::App* each)
                       {
                           const CLI::Option* option = each->get_option_no_throw(word);
                           return option != nullptr && option->get_items_expected_max() > 0;
                       });
}

/**
 * The arguments in the library's order, which is reversed. "--title=" becomes two words, because the library accepts no
 * empty text in one.
 */
Texts Arguments(const CLI::App& app, int argc, char** argv)
{
    Texts arguments;
    bool isValue = false;
    for (int i = 1; i < argc; ++i)
    {
        const std::string word = argv[i];
        const bool isEmptyOption = !isValue && word.rfind("--", 0) == 0 && word.find('=') == word.size() - 1;
        arguments.push_back(isEmptyOption ? word.substr(0, word.size() - 1) : word);
        if (isEmptyOption)
        {
            arguments.emplace_back();
        }
        isValue = !isValue && AwaitsValue(app, word);
    }
    std::reverse(arguments.begin(), arguments.end());
    return arguments;
}

Texts KindsOf(const CLI::App& app)
{
    Texts kinds;
    for (const CLI::App* kind : app.get_subcommands([](const CLI::App*) { return true; }))
    {
        kinds.push_back(kind->get_name());
    }
    return kinds;
}

Texts OptionsOf(const CLI::App& kind)
{
    Texts options;
    for (const CLI::App* app : {&kind, kind.get_parent()})
    {
        for (const CLI::Option* option :
             app->get_options([](const CLI::Option* each) { return each->nonpositional(); }))
        {
            options.push_back("--" + option->get_lnames().front());
        }
    }
    return options;
}

/** The library only repeats a word that it does not know. */
int ComplainOfUsage(const CLI::App& app, const CLI::ParseError& error)
{
    const Texts left = app.remaining(true);
    const auto kinds = app.get_subcommands();
    const auto unknown =
        std::find_if(left.begin(), left.end(),
                     [&kinds](const std::string& word) { return (word.rfind("--", 0) == 0) != kinds.empty(); });
    if (unknown == left.end())
    {
        return app.exit(error) == 0 ? 0 : ExitStatus::BAD_USAGE;
    }
    const Texts known = kinds.empty() ? KindsOf(app) : OptionsOf(*kinds.front());
    const std::string command = kinds.empty() ? "veskar-mw" : "veskar-mw " + kinds.front()->get_name();
    const std::string word = unknown->substr(0, unknown->find('='));
    std::cerr << "veskar-mw: there is no " << (kinds.empty() ? "kind" : "option") << " \"" << word << "\""
              << Suggestion(word, known) << "; " << command << " --help names them all\n";
    return ExitStatus::BAD_USAGE;
}

} // namespace

std::variant<Command, int> ParseCommandLine(int argc, char** argv)
{
    CLI::App app{DESCRIPTION, "veskar-mw"};
    app.set_version_flag("--version", VESKAR_VERSION);
    app.add_flag_callback(
        "--kinds", [] { throw CLI::CallForVersion(KindsToJson(), 0); },
        "Print every kind, its options and their keys as JSON");
    app.require_subcommand(1);
    // So that the general options may also follow the kind.
    app.fallthrough();
    General general;
    Requests requests;
    std::string percentFrom;
    CLI::Option* noWait = AddGeneral(app, general);
    AddScreens(app, requests);
    AddFeed(app, noWait, percentFrom);
    AddOthers(app, requests);
    // Added after the kinds, which would inherit it.
    app.footer(FOOTER);
    try
    {
        app.parse(Arguments(app, argc, argv));
    }
    catch (const CLI::ParseError& error)
    {
        return ComplainOfUsage(app, error);
    }

    const std::string kind = app.get_subcommands().front()->get_name();
    Request request = requests.at(kind);
    if (kind != RAW)
    {
        request.SetIds(general.uiId, static_cast<std::uint8_t>(general.sourceId));
    }
    const auto timeout =
        std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::duration<double>{general.timeout});
    return Command{request, timeout, !general.noWait, percentFrom};
}

} // namespace veskar
