/** Every setting and feature flag that the TV's parts read, for people: what it does and what it may hold. */
#pragma once

#include <string>
#include <string_view>

namespace veskar
{

enum class SettingType
{
    Text,
    Integer,
    /** Kept as 1 or 0. */
    Switch
};

struct SettingKey
{
    const char* key = nullptr;
    SettingType type = SettingType::Text;
    const char* meaning = nullptr;
    /** Of a number: those that anything reads. */
    int least = 0;
    int most = 1;
};

/** Iterable: `for (const SettingKey& known : KnownSettings())`. */
struct SettingKeyRange
{
    const SettingKey* first;
    const SettingKey* last;
    const SettingKey* begin() const { return first; }
    const SettingKey* end() const { return last; }
};

constexpr const char* LANGUAGE_KEY = "db/menu_widget/language";
constexpr const char* ORIENTATION_KEY = "db/menu_widget/orientation";
constexpr const char* ENLARGED_TEXT_KEY = "db/menu/system/accessibility/focuszoom";
constexpr const char* HIGH_CONTRAST_KEY = "db/menu/system/accessibility/highcontrast";
constexpr const char* VOICE_GUIDE_KEY = "db/menu/system/accessibility/voiceguide";
constexpr const char* NUMBER_PAD_SHOWN_KEY = "memory/function-osd/number_pad_show";
constexpr const char* KEY_GUARD_KEY = "db/desk/key_guard";

/** The orientation's value; every other is left-to-right. */
constexpr int RIGHT_TO_LEFT = 1;

SettingKeyRange KnownSettings();

/** Null for a key that is not in the table. */
const SettingKey* FindSetting(std::string_view key);

const char* TypeName(SettingType type);

/**
 * Converts `value` to the form in which it is kept: for a switch, true, on and yes become 1. Returns false and leaves
 * `value` unchanged when it is not of the type.
 */
bool NormaliseSetting(SettingType type, std::string& value);

/** What is wrong with a value that is of the key's type, or an empty text: a number or a language that nothing has. */
std::string FaultOf(const SettingKey& key, const std::string& value);

} // namespace veskar
