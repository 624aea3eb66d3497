#include "ServiceProcessor.h"

#include "Handles.h"
#include "IWindowManager.h"
#include "Log.h"
#include "RequestKeys.h"

#include <IVesKarController.h>
#include <app_context_manager.h>

namespace VESKAR_APP
{

namespace
{

/** The blank at its end belongs to the task's name. */
constexpr const char* MENU_TASK = "name:menu ";

struct MenuPosition
{
    const char* name;
    const char* logText;
    int position;
};

constexpr MenuPosition MENU_POSITIONS[] = {
    {"veskar_menu", "MENU_POS_DONGLE_MENU", 1},
    {"veskar_info", "MENU_POS_APP_INFO", 0},
    {"veskar_add_op", "MENU_POS_ADD_OP", 2},
    {"veskar_delete_op", "MENU_POS_DELETE_OP", 3},
};

const MenuPosition* FindMenuPosition(const std::string& name)
{
    for (const MenuPosition& position : MENU_POSITIONS)
    {
        if (name == position.name)
        {
            return &position;
        }
    }
    return nullptr;
}

} // namespace

ServiceProcessor::ServiceProcessor(IWindowManager& windowManager) : m_windowManager(windowManager) {}

bool ServiceProcessor::HandleService(app_control_h const& request)
{
    if (request == nullptr)
    {
        LOG_ERROR("NULL service data.");
        return false;
    }

    char* value = nullptr;
    const int error = app_control_get_extra_data(request, RequestKeys::SIGNAL_TYPE, &value);
    const CString signalType(value);
    if (error != APP_CONTROL_ERROR_NONE || !signalType)
    {
        // Info, not error: the platform also delivers plain launches, which carry no signal type.
        LOG_INFO("app_control_get_extra_data returned error " << error);
        return false;
    }

    const std::string signal(signalType.get());
    if (signal == RequestKeys::SIGNAL_MENU_POS)
    {
        m_HandleRequestFromMenu(request);
    }
    else if (signal == RequestKeys::SIGNAL_TVSERVICE)
    {
        m_HandleRequestFromMW(request);
    }
    else if (signal == RequestKeys::SIGNAL_SEQUENCE)
    {
        LOG_INFO("SEQUENCE");
    }
    else
    {
        LOG_ERROR("Wrong value of signal type");
    }
    return true;
}

void ServiceProcessor::m_HandleRequestFromMW(app_control_h const& request)
{
    std::string uiType;
    if (!m_GetParameter(request, RequestKeys::UI_TYPE, uiType))
    {
        LOG_ERROR("SIGNAL_TVSERVICE_KEY missing");
        return;
    }
    int uiId = 0;
    if (!m_GetParameter(request, RequestKeys::UI_ID, uiId))
    {
        LOG_ERROR("UI_PARAM_UI_ID missing");
        return;
    }
    int source = 0;
    if (!m_GetParameter(request, RequestKeys::SOURCE_ID, source))
    {
        LOG_ERROR("UI_PARAM_SOURCE_ID missing");
        return;
    }
    const auto sourceId = static_cast<unsigned char>(source);

    if (uiType == "ui_type_message")
    {
        m_HandleMessage(request, uiId, sourceId);
    }
    else if (uiType == "ui_type_image")
    {
        m_HandleImage(request, uiId, sourceId);
    }
    else if (uiType == "ui_type_list")
    {
        m_HandleList(request, uiId, sourceId, false);
    }
    else if (uiType == "ui_type_multiple_list")
    {
        m_HandleMultipleList(request, uiId, sourceId, true);
    }
    else if (uiType == "ui_type_select")
    {
        m_HandleList(request, uiId, sourceId, true);
    }
    else if (uiType == "ui_type_progress")
    {
        m_HandleProgressWindow(request, uiId, sourceId);
    }
    else if (uiType == "ui_type_loading")
    {
        m_HandleLoadingWindow(request, uiId, sourceId);
    }
    else if (uiType == "ui_type_pin_entry")
    {
        m_HandlePinEntry(request, uiId, sourceId);
    }
    else if (uiType == "ui_type_close")
    {
        m_HandleClose(request, uiId, sourceId);
    }
    else if (uiType == "ui_type_multiple_image_list")
    {
        m_HandleMultipleImageList(request, uiId, sourceId);
    }
    // A kind of screen that a newer middleware knows is no error here.
    LOG_INFO("complete");
}

void ServiceProcessor::m_HandleRequestFromMenu(app_control_h const& request)
{
    LOG_ENTRY_INFO();
    std::string name;
    if (!m_GetParameter(request, RequestKeys::MENU_POS, name))
    {
        LOG_ERROR("MENU_POS_KEY missing");
        return;
    }
    VESKAR_API::IVesKarController* controller = VESKAR_API::IVesKarController::Instance();
    if (controller == nullptr)
    {
        LOG_ERROR("vesKarCtrl == NULL");
        return;
    }

    // Before the position is known to be good: a menu left open would cover the screens that follow.
    app_context_manager_request_task(MENU_TASK, "stop");

    const MenuPosition* position = FindMenuPosition(name);
    if (position == nullptr)
    {
        LOG_ERROR("Wrong value of menu position in service data " << name);
        return;
    }
    LOG_INFO(position->logText);
    controller->OpenMenuPosition(position->position);
}

bool ServiceProcessor::m_HandleClose(app_control_h const& /*request*/, int uiId, unsigned char sourceId)
{
    LOG_ENTRY_INFO();
    m_windowManager.Close(uiId, sourceId);
    return true;
}

} // namespace VESKAR_APP
