/** The settings in their files. */
#include <SettingKeys.h>
#include <SettingsStore.h>
#include <vconf.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

using namespace veskar;

namespace
{

constexpr const char* NUMBER = "db/menu/system/accessibility/focuszoom";

/** The settings of a TV that nobody has used yet. */
class Settings : public testing::Test
{
protected:
    void SetUp() override
    {
        setenv("VESKAR_SETTINGS_DIR", (m_folder / "kept").c_str(), 1);
        setenv("VESKAR_MEMORY_DIR", (m_folder / "memory").c_str(), 1);
        setenv("VESKAR_FEATURES_DIR", (m_folder / "features").c_str(), 1);
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    static std::filesystem::path NewFolder()
    {
        std::string name = testing::TempDir() + "/settings-XXXXXX";
        return mkdtemp(name.data());
    }

    const std::filesystem::path m_folder = NewFolder();
};

void WriteFile(const std::string& key, const std::string& content)
{
    const auto path = SettingFile(key);
    ASSERT_TRUE(path);
    std::filesystem::create_directories(path->parent_path());
    std::ofstream(*path, std::ios::binary) << content;
}

} // namespace

TEST_F(Settings, EachKeyIsKeptInTheFolderOfItsKind)
{
    for (const auto& [key, file] : {std::pair("db/a/b", "kept/db/a/b"), std::pair("memory/a", "memory/memory/a"),
                                    std::pair("com.x/a", "features/com.x/a")})
    {
        EXPECT_EQ(SettingFile(key), m_folder / file);
        EXPECT_EQ(ReadSetting(key), std::nullopt);
        EXPECT_EQ(WriteSetting(key, "two words"), std::error_code());
        EXPECT_EQ(ReadSetting(key), "two words");
        EXPECT_EQ(std::filesystem::status(m_folder / file).permissions(), std::filesystem::perms(0644));
    }
}

TEST_F(Settings, OneLineBreakAtTheEndIsNoPartOfAValueAndANumberIsNothingElse)
{
    const std::pair<const char*, int> contents[] = {{"1\n", 0}, {"1", 0},    {"1\n\n", -1},       {"", -1},
                                                    {"1 ", -1}, {"0x1", -1}, {"99999999999", -1}, {"\n", -1}};
    for (const auto& [content, result] : contents)
    {
        WriteFile(NUMBER, content);
        int number = 77;
        EXPECT_EQ(vconf_get_int(NUMBER, &number), result) << content;
        EXPECT_EQ(number, result == 0 ? 1 : 77) << content;
    }
}

TEST_F(Settings, AFileThatIsTooLargeForAValueCountsAsMissing)
{
    WriteFile(NUMBER, "1");
    const auto file = *SettingFile(NUMBER);
    for (const std::uintmax_t size :
         {std::uintmax_t{64} << 10, (std::uintmax_t{64} << 10) + 1, std::uintmax_t{1} << 40})
    {
        std::filesystem::resize_file(file, size);
        EXPECT_EQ(ReadSetting(NUMBER).has_value(), size == 64 << 10) << size;
    }
}

TEST_F(Settings, AKeyNeverLeavesItsFolder)
{
    for (const char* key : {"", "/etc/passwd", "db/../../x", "db//x", "db/", "memory/./x", "..", "db/a\nb"})
    {
        EXPECT_FALSE(SettingFile(key)) << key;
        EXPECT_EQ(WriteSetting(key, "1"), std::errc::invalid_argument) << key;
    }
    EXPECT_EQ(vconf_get_str("db/menu"), nullptr) << "a folder is no value";
}
