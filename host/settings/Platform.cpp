/** The platform's C interfaces over the settings store. */
#include <cstring>

#include <system_info.h>
#include <ui_orientation.h>
#include <vconf.h>

#include "SettingKeys.h"
#include "SettingsStore.h"

namespace
{

constexpr int FAILED = -1;
constexpr int INVALID_PARAMETER = -22;

bool IsFeature(const char* key)
{
    return veskar::KindOf(key) == veskar::SettingKind::Feature;
}

} // namespace

int vconf_get_int(const char* key, int* value)
{
    const auto number = key != nullptr && !IsFeature(key) ? veskar::ReadWholeNumber(key) : std::nullopt;
    if (!number || value == nullptr)
    {
        return FAILED;
    }
    *value = *number;
    return 0;
}

int vconf_get_bool(const char* key, int* value)
{
    return vconf_get_int(key, value);
}

char* vconf_get_str(const char* key)
{
    const auto text = key != nullptr && !IsFeature(key) ? veskar::ReadSetting(key) : std::nullopt;
    return text ? strdup(text->c_str()) : nullptr;
}

int system_info_get_custom_bool(const char* key, bool* value)
{
    const auto number = key != nullptr && IsFeature(key) ? veskar::ReadWholeNumber(key) : std::nullopt;
    if (!number || value == nullptr)
    {
        return INVALID_PARAMETER;
    }
    *value = *number != 0;
    return 0;
}

int ua_UI_orientation_get(void)
{
    return veskar::ReadWholeNumber(veskar::ORIENTATION_KEY).value_or(0);
}
