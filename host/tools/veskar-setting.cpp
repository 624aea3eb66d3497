/** Reads and writes the settings and feature flags of the desk TV. Needs neither the bus nor the application. */
#include <cstdio>
#include <cstdlib>
#include <string>

#include <CLI/CLI.hpp>

#include "SettingKeys.h"
#include "SettingsStore.h"
#include "Tool.h"

namespace
{

namespace ToolStatus = veskar::ToolStatus;

constexpr int NOT_SET = 1;

struct Arguments
{
    std::string key;
    std::string value;
    bool force = false;
};

/** Prints what is wrong with the key; true when it may be used. */
bool MayUse(const Arguments& arguments)
{
    const char* key = arguments.key.c_str();
    if (!veskar::IsWellFormedKey(arguments.key))
    {
        fprintf(stderr, "veskar-setting: \"%s\" is no key: names with slashes between, as db/menu_widget/language\n",
                key);
        return false;
    }
    if (veskar::FindSetting(arguments.key) == nullptr && !arguments.force)
    {
        fprintf(
            stderr,
            "veskar-setting: nothing reads \"%s\"; \"veskar-setting list\" shows every key, --force takes any other\n",
            key);
        return false;
    }
    if (!veskar::SettingFile(arguments.key))
    {
        fprintf(stderr,
                "veskar-setting: no folder for \"%s\": set HOME or XDG_RUNTIME_DIR, or the TV's own variables\n", key);
        return false;
    }
    return true;
}

int Get(const Arguments& arguments)
{
    if (!MayUse(arguments))
    {
        return ToolStatus::BAD_USAGE;
    }
    const auto value = veskar::ReadSetting(arguments.key);
    if (!value)
    {
        fprintf(stderr, "veskar-setting: \"%s\" is not set\n", arguments.key.c_str());
        return NOT_SET;
    }
    printf("%s\n", value->c_str());
    return ToolStatus::DONE;
}

/** Prints that nobody would read it; true when the key may be changed. */
bool MayChange(const Arguments& arguments)
{
    const bool hasFolder = std::getenv("VESKAR_SETTINGS_DIR") != nullptr;
    if (veskar::IsInTv() || hasFolder || arguments.force)
    {
        return true;
    }
    fprintf(stderr, "veskar-setting: nothing reads it%s; --force changes %s\n", veskar::HintOfTv().c_str(),
            veskar::SettingFile(arguments.key)->c_str());
    return false;
}

int StatusOf(const std::error_code& error, const Arguments& arguments)
{
    if (!error)
    {
        return ToolStatus::DONE;
    }
    fprintf(stderr, "veskar-setting: %s: %s\n", veskar::SettingFile(arguments.key)->c_str(), error.message().c_str());
    return ToolStatus::CANNOT_WRITE;
}

int Set(const Arguments& arguments)
{
    if (!MayUse(arguments))
    {
        return ToolStatus::BAD_USAGE;
    }
    const auto* known = veskar::FindSetting(arguments.key);
    const auto type = known != nullptr ? known->type : veskar::SettingType::Text;
    auto value = arguments.value;
    if (!veskar::NormaliseSetting(type, value))
    {
        fprintf(stderr, "veskar-setting: \"%s\" takes %s, not \"%s\"\n", arguments.key.c_str(), veskar::TypeName(type),
                arguments.value.c_str());
        return ToolStatus::BAD_USAGE;
    }
    const std::string fault = known != nullptr && !arguments.force ? veskar::FaultOf(*known, value) : "";
    if (!fault.empty())
    {
        fprintf(stderr, "veskar-setting: \"%s\": %s; --force takes any other\n", arguments.key.c_str(), fault.c_str());
        return ToolStatus::BAD_USAGE;
    }
    if (!MayChange(arguments))
    {
        return ToolStatus::UNAVAILABLE;
    }
    return StatusOf(veskar::WriteSetting(arguments.key, value), arguments);
}

int Unset(const Arguments& arguments)
{
    if (!MayUse(arguments))
    {
        return ToolStatus::BAD_USAGE;
    }
    if (!MayChange(arguments))
    {
        return ToolStatus::UNAVAILABLE;
    }
    return StatusOf(veskar::RemoveSetting(arguments.key), arguments);
}

int List()
{
    for (const auto& known : veskar::KnownSettings())
    {
        const auto value = veskar::ReadSetting(known.key);
        printf("%s = %s\n    %s\n", known.key, value ? value->c_str() : "(not set)", known.meaning);
    }
    return ToolStatus::DONE;
}

CLI::App* AddKeyCommand(CLI::App& program, Arguments& arguments, const char* name, const char* description)
{
    auto* command = program.add_subcommand(name, description);
    command->add_option("KEY", arguments.key, "the setting or flag")->required();
    command->add_flag("--force", arguments.force, "take a key or a value that nothing reads, too, and where no TV is");
    return command;
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App program("The settings and feature flags of the desk TV. A language or direction that is set reaches the "
                     "running application at once; everything else is read when it is needed.");
    program.footer("Exit status:\n"
                   "  0   done\n"
                   "  1   get: the key is not set\n"
                   "  64  bad usage: a key or a value that nothing reads\n"
                   "  69  no TV\n"
                   "  73  the value cannot be written");
    program.set_version_flag("--version", VESKAR_VERSION);
    program.require_subcommand(1);
    Arguments arguments;
    const auto* get = AddKeyCommand(program, arguments, "get", "print a value");
    auto* set = AddKeyCommand(program, arguments, "set", "keep a value");
    set->add_option("VALUE", arguments.value, "a text, a whole number, or on and off")->required();
    const auto* unset = AddKeyCommand(program, arguments, "unset", "forget a value");
    program.add_subcommand("list", "every key, its value and what it does");
    try
    {
        program.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return program.exit(error) == 0 ? ToolStatus::DONE : ToolStatus::BAD_USAGE;
    }
    if (set->parsed())
    {
        return Set(arguments);
    }
    if (unset->parsed())
    {
        return Unset(arguments);
    }
    return get->parsed() ? Get(arguments) : List();
}
