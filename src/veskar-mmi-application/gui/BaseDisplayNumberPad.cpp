// BaseDisplay's way to the platform's number pad, an application of its own.

#include "BaseDisplay.h"
#include "Handles.h"
#include "Log.h"

#include <initializer_list>

#include <system_info.h>
#include <vconf.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* NUMBER_PAD = "org.tizen.function-osd";
constexpr const char* PAD_SHOWN_SETTING = "memory/function-osd/number_pad_show";
constexpr const char* SMART_CONTROL_FEATURE = "com.brelmon/featureconf/bt_profile_bt_smart_control";

struct ExtraData
{
    const char* key;
    const char* value;
};

/** A request to the pad; null, and said so, where the platform gives none to fill. */
AppControl CreatePadRequest(std::initializer_list<ExtraData> extraData)
{
    AppControl request = CreateAppControl();
    if (!request)
    {
        LOG_ERROR("Failed to create app_control");
        return request;
    }
    for (const ExtraData& data : extraData)
    {
        app_control_add_extra_data(request.get(), data.key, data.value);
    }
    app_control_set_app_id(request.get(), NUMBER_PAD);
    return request;
}

} // namespace

bool BaseDisplay::m_CheckKeyPadShown()
{
    LOG_ENTRY();
    int value = 0;
    if (vconf_get_int(PAD_SHOWN_SETTING, &value) != 0)
    {
        LOG_ERROR("vconf failed to get " << PAD_SHOWN_SETTING);
    }
    LOG_DEBUG("Key pad visibility status : " << value);
    return value == 1;
}

bool BaseDisplay::m_CheckSmartControlSupported()
{
    LOG_ENTRY();
    bool supported = false;
    if (system_info_get_custom_bool(SMART_CONTROL_FEATURE, &supported) != 0)
    {
        LOG_ERROR("system_info_get_custom_bool SYSTEM_INFO_CUSTOM_KEY_BT_PROFILE_BT_SMART_CONTROL fails");
    }
    LOG_DEBUG("Smart Remote BTstatus : " << supported);
    return supported;
}

void BaseDisplay::t_ShowNumPad(bool numbersOnly)
{
    LOG_ENTRY();
    if (!m_CheckSmartControlSupported())
    {
        LOG_ERROR("Numpad not supported");
        return;
    }
    if (m_CheckKeyPadShown())
    {
        LOG_DEBUG("Numpad already visible");
        return;
    }
    const AppControl request =
        CreatePadRequest({{"type", numbersOnly ? "number" : "number_zip"}, {"cmd", "show"}, {"tts", "skip"}});
    if (!request)
    {
        return;
    }
    const int result = app_control_send_launch_request(request.get(), nullptr, nullptr);
    if (result != APP_CONTROL_ERROR_NONE)
    {
        LOG_ERROR("Failed to launch Function-osd. Result: " << result);
        return;
    }
    LOG_DEBUG("Succeeded to launch Function-osd.");
}

void BaseDisplay::t_HideNumPad()
{
    LOG_ENTRY();
    if (!m_CheckSmartControlSupported())
    {
        LOG_ERROR("Numpad not supported");
        return;
    }
    if (!m_CheckKeyPadShown())
    {
        LOG_DEBUG("Numpad already hidden");
        return;
    }
    const AppControl request = CreatePadRequest({{"cmd", "hide"}});
    if (!request)
    {
        return;
    }
    if (app_control_send_launch_request(request.get(), nullptr, nullptr) != APP_CONTROL_ERROR_NONE)
    {
        LOG_ERROR("Failed to launch Function-osd.");
        return;
    }
    LOG_DEBUG("Succeeded to launch Function-osd.");
}

} // namespace VESKAR_APP
