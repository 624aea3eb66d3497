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
    const char* key;
    SettingType type;
    const char* meaning;
};

/** Iterable: `for (const SettingKey& known : KnownSettings())`. */
struct SettingKeyRange
{
    const SettingKey* first;
    const SettingKey* last;
    const SettingKey* begin() const { return first; }
    const SettingKey* end() const { return last; }
};

constexpr const char* LanguageKey = "db/menu_widget/language";
constexpr const char* OrientationKey = "db/menu_widget/orientation";
constexpr const char* EnlargedTextKey = "db/menu/system/accessibility/focuszoom";
constexpr const char* HighContrastKey = "db/menu/system/accessibility/highcontrast";
constexpr const char* VoiceGuideKey = "db/menu/system/accessibility/voiceguide";
constexpr const char* NumberPadShownKey = "memory/function-osd/number_pad_show";

/** The orientation's value; every other is left-to-right. */
constexpr int RightToLeft = 1;

SettingKeyRange KnownSettings();

/** Null for a key that is not in the table. */
const SettingKey* FindSetting(std::string_view key);

const char* TypeName(SettingType type);

/**
 * Brings `value` into the form that is kept: true, on and yes become 1 for a switch. False, with `value` as it was,
 * when it is none of the type.
 */
bool NormaliseSetting(SettingType type, std::string& value);

} // namespace veskar
