// A settings file with any content, and any key.

#include "Input.h"
#include "SettingKeys.h"
#include "SettingsStore.h"

#include <fstream>

#include <unistd.h>
#include <vconf.h>

using namespace veskar;

namespace
{

std::string Folder()
{
    std::string folder = (std::filesystem::temp_directory_path() / "veskar-fuzz.XXXXXX").string();
    Require(mkdtemp(folder.data()) != nullptr, "a folder can be made");
    for (const char* variable : {"VESKAR_SETTINGS_DIR", "VESKAR_MEMORY_DIR", "VESKAR_FEATURES_DIR"})
    {
        setenv(variable, folder.c_str(), 1);
    }
    atexit([] { std::filesystem::remove_all(getenv("VESKAR_SETTINGS_DIR")); });
    return folder;
}

std::string WithoutLineBreak(std::string text)
{
    return text.substr(0, text.size() - (!text.empty() && text.back() == '\n' ? 1 : 0));
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static const std::string folder = Folder();
    Input input(data, size);
    const std::string key = input.Text();
    const auto file = SettingFile(key);
    Require(!file || file->lexically_normal().string().rfind(folder + "/", 0) == 0, "a setting is inside its folder");
    ReadSetting(key);

    const unsigned padding = input.Number();
    std::string content = input.Rest();
    content.resize(content.size() + (padding > 60'000 ? padding : 0), '7');
    std::filesystem::create_directory(folder + "/db");
    std::ofstream(folder + "/db/key", std::ios::binary) << content;
    const auto read = ReadSetting("db/key");
    Require(read.has_value() == (content.size() <= 64U * 1024), "every file of 64 KiB is read and no larger one");
    Require(!read || *read == WithoutLineBreak(content), "a value is its file's content");

    int number = 0;
    const bool isNumber = vconf_get_int("db/key", &number) == 0;
    Require(isNumber == ReadWholeNumber("db/key").has_value(), "both readers know a number");
    Require(!isNumber || std::stoi(*read) == number, "a number is what the file says");
    for (const SettingType type : {SettingType::Text, SettingType::Integer, SettingType::Switch})
    {
        std::string value = content;
        if (NormaliseSetting(type, value) && content.size() < 1000)
        {
            Require(!WriteSetting("db/key", value) && ReadSetting("db/key") == value, "what is written is read");
        }
    }
    return 0;
}
