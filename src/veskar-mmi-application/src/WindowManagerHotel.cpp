// The window manager's return to a hotel's factory menu, which may have started this application.

#include "Handles.h"
#include "Log.h"
#include "WindowManager.h"

#include <app_control.h>
#include <system_info.h>
#include <vconf.h>

namespace VESKAR_APP
{

namespace
{

constexpr const char* HOTEL_OPTION = "com.brelmon/featureconf/product.b2b_option_support";
constexpr const char* HOTEL_FACTORY_MODE = "memory/ephotel/hotelmenu/hotelfactorymode";
constexpr const char* HOTEL_FACTORY_MENU = "org.tizen.ep-hotel-factory";

} // namespace

bool WindowManager::m_HotelFactoryMode()
{
    LOG_ENTRY();
    bool isHotelTv = false;
    if (system_info_get_custom_bool(HOTEL_OPTION, &isHotelTv) != 0)
    {
        LOG_INFO("Failed to get SYSTEM_INFO_CUSTOM_KEY_B2B_OPTION_SUPPORT");
        return false;
    }
    if (!isHotelTv)
    {
        LOG_INFO("This is not a hotel TV, menu cannot have been launched by factory menu");
        return false;
    }
    int factoryMode = 0;
    if (vconf_get_bool(HOTEL_FACTORY_MODE, &factoryMode) != 0)
    {
        LOG_INFO("Failed to get vconf: " << HOTEL_FACTORY_MODE);
        return false;
    }
    LOG_INFO("Hotel factory mode :" << factoryMode);
    if (factoryMode != 1)
    {
        return false;
    }
    // An error line on purpose: this mode must be hard to miss in the log of a TV that was sold.
    LOG_ERROR("Hotel factory mode is set");
    return true;
}

void WindowManager::m_LaunchHotelFactoryMenu()
{
    LOG_ENTRY();
    const AppControl request = CreateAppControl();
    if (!request)
    {
        LOG_ERROR("app_control_create failed"); // the launch below fails too and logs the reason
    }
    app_control_set_app_id(request.get(), HOTEL_FACTORY_MENU);
    const int result = app_control_send_launch_request(request.get(), nullptr, nullptr);
    if (result != APP_CONTROL_ERROR_NONE)
    {
        LOG_ERROR("Failed to send request [" << result << "]");
    }
}

} // namespace VESKAR_APP
