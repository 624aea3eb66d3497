#include "SettingKeys.h"

#include <algorithm>
#include <iterator>

#include "SettingsStore.h"

namespace veskar
{
namespace
{

constexpr SettingKey KEYS[] = {
    {LANGUAGE_KEY, SettingType::Text, "language of the toolkit's own texts, as a locale (ko_KR.utf8)"},
    {ORIENTATION_KEY, SettingType::Integer, "direction of the user interface: 1 right-to-left, 0 left-to-right"},
    {ENLARGED_TEXT_KEY, SettingType::Integer, "enlarged text: 1 on, 0 off"},
    {HIGH_CONTRAST_KEY, SettingType::Integer, "high contrast: 1 on, 0 off"},
    {VOICE_GUIDE_KEY, SettingType::Integer, "voice guide: 1 on, 0 off"},
    {NUMBER_PAD_SHOWN_KEY, SettingType::Integer, "1 while the number pad is on the screen"},
    {KEY_GUARD_KEY, SettingType::Integer,
     "milliseconds after a screen's first frame in which Return, Back and Exit reach nobody: 200 when unset, 0 never"},
    {"memory/ephotel/hotelmenu/hotelfactorymode", SettingType::Switch, "the hotel factory menu started the dialogue"},
    {"com.brelmon/featureconf/bt_profile_bt_smart_control", SettingType::Switch,
     "the set has a smart remote without digit keys, so a PIN may ask for the number pad"},
    {"com.brelmon/featureconf/product.b2b_option_support", SettingType::Switch, "the set is a hotel model"},
};

constexpr std::string_view YES[] = {"1", "true", "on", "yes"};
constexpr std::string_view NO[] = {"0", "false", "off", "no"};

template <size_t Count>
bool Contains(const std::string_view (&words)[Count], std::string_view word)
{
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool NormaliseSwitch(std::string& value)
{
    const bool yes = Contains(YES, value);
    if (!yes && !Contains(NO, value))
    {
        return false;
    }
    value = yes ? "1" : "0";
    return true;
}

} // namespace

SettingKeyRange KnownSettings()
{
    return {std::begin(KEYS), std::end(KEYS)};
}

const SettingKey* FindSetting(std::string_view key)
{
    const auto range = KnownSettings();
    const auto* found = std::find_if(range.begin(), range.end(), [&](const auto& known) { return known.key == key; });
    return found == range.end() ? nullptr : found;
}

const char* TypeName(SettingType type)
{
    switch (type)
    {
    case SettingType::Integer:
        return "a whole number";
    case SettingType::Switch:
        return "1 or 0";
    default:
        return "a text";
    }
}

bool NormaliseSetting(SettingType type, std::string& value)
{
    switch (type)
    {
    case SettingType::Integer:
        return ParseWholeNumber(value).has_value();
    case SettingType::Switch:
        return NormaliseSwitch(value);
    default:
        return value.find_first_of("\n\r") == std::string::npos;
    }
}

} // namespace veskar
