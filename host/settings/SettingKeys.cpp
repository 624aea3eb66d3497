#include "SettingKeys.h"

#include <algorithm>
#include <iterator>

#include <locale.h>

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
     "milliseconds after a screen's first frame in which Return, Back and Exit reach nobody: 200 when unset, 0 never",
     0, 60'000},
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

bool IsInstalledLocale(const std::string& name)
{
    const locale_t locale = newlocale(LC_CTYPE_MASK, name.c_str(), nullptr);
    if (locale == nullptr)
    {
        return false;
    }
    freelocale(locale);
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

std::string FaultOf(const SettingKey& key, const std::string& value)
{
    if (key.key == std::string_view(LANGUAGE_KEY))
    {
        return value.empty() || IsInstalledLocale(value) ? "" : "there is no locale \"" + value + "\" (locale -a)";
    }
    const auto number = key.type == SettingType::Integer ? ParseWholeNumber(value) : std::nullopt;
    const bool isIn = !number || (key.least <= *number && *number <= key.most);
    return isIn ? "" : "it is from " + std::to_string(key.least) + " to " + std::to_string(key.most);
}

} // namespace veskar
