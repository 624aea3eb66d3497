// A settings file with any content, and any key. The input: a key, how much is appended, the content.

#include "Input.h"
#include "SettingKeys.h"
#include "SettingsStore.h"

#include <fstream>

#include <vconf.h>

using namespace veskar;

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static const std::string folder = std::filesystem::temp_directory_path() / "veskar-fuzz.settings";
    for (const char* variable : {"VESKAR_SETTINGS_DIR", "VESKAR_MEMORY_DIR", "VESKAR_FEATURES_DIR"})
    {
        setenv(variable, folder.c_str(), 1);
    }
    Input input(data, size);
    const std::string key = input.Text();
    const auto file = SettingFile(key);
    Require(!file || file->lexically_normal().string().rfind(folder + "/", 0) == 0, "a setting is inside its folder");
    ReadSetting(key);

    const unsigned more = input.Number();
    std::string content = input.Rest();
    content.resize(content.size() + (more > 60'000 ? more : 0), '7');
    std::filesystem::create_directories(folder + "/db");
    std::ofstream(folder + "/db/key", std::ios::binary) << content;
    const std::string value = content.substr(0, content.size() - (!content.empty() && content.back() == '\n' ? 1 : 0));
    const auto read = ReadSetting("db/key");
    Require(read.has_value() == (content.size() <= 64UL * 1024), "every file of 64 KiB is read and no larger one");
    Require(!read || *read == value, "a value is its file's content");
    int number = 0;
    Require(vconf_get_int("db/key", &number) != 0 || std::stoi(value) == number, "a number is what the file says");
    for (const SettingType type : {SettingType::Text, SettingType::Integer, SettingType::Switch})
    {
        std::string written = value;
        if (read && NormaliseSetting(type, written))
        {
            const bool isRefused = static_cast<bool>(WriteSetting("db/key", written));
            Require(isRefused ? written.size() >= 64UL * 1024 : ReadSetting("db/key") == written,
                    "what is written is read");
        }
    }
    return 0;
}
