#include "ServiceProcessor.h"

#include "Handles.h"
#include "IWindowManager.h"
#include "Log.h"
#include "RequestKeys.h"

#include <algorithm>
#include <iterator>

#include <IVesKarController.h>
#include <app_context_manager.h>

namespace VESKAR_APP
{

namespace
{

/** The space at the end belongs to the task's name. */
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

/** The row with this name, or null. */
template <typename Row, std::size_t size>
const Row* Find(const Row (&table)[size], const std::string& name)
{
    const Row* row = std::find_if(std::begin(table), std::end(table), [&](const Row& r) { return name == r.name; });
    return row == std::end(table) ? nullptr : row;
}

/** A handler as a plain function, with the flag that some UI types give theirs. */
template <auto Handler, bool... flag>
bool Handle(ServiceProcessor& processor, app_control_h const& request, int uiId, unsigned char sourceId)
{
    return (processor.*Handler)(request, uiId, sourceId, flag...);
}

} // namespace

struct ServiceProcessor::UiType
{
    const char* name;
    bool (*handle)(ServiceProcessor& processor, app_control_h const& request, int uiId, unsigned char sourceId);
};

const ServiceProcessor::UiType ServiceProcessor::UI_TYPES[] = {
    {"ui_type_message", Handle<&ServiceProcessor::m_HandleMessage>},
    {"ui_type_image", Handle<&ServiceProcessor::m_HandleImage>},
    {"ui_type_list", Handle<&ServiceProcessor::m_HandleList, false>},
    {"ui_type_multiple_list", Handle<&ServiceProcessor::m_HandleMultipleList, true>},
    {"ui_type_select", Handle<&ServiceProcessor::m_HandleList, true>},
    {"ui_type_progress", Handle<&ServiceProcessor::m_HandleProgressWindow>},
    {"ui_type_loading", Handle<&ServiceProcessor::m_HandleLoadingWindow>},
    {"ui_type_pin_entry", Handle<&ServiceProcessor::m_HandlePinEntry>},
    {"ui_type_close", Handle<&ServiceProcessor::m_HandleClose>},
    {"ui_type_multiple_image_list", Handle<&ServiceProcessor::m_HandleMultipleImageList>},
};

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
        // Not an error: the platform also delivers plain launches, which have no signal type.
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
    std::string name;
    if (!m_GetParameter(request, RequestKeys::UI_TYPE, name))
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
    int sourceId = 0;
    if (!m_GetParameter(request, RequestKeys::SOURCE_ID, sourceId))
    {
        LOG_ERROR("UI_PARAM_SOURCE_ID missing");
        return;
    }

    // An unknown type is no error: a newer middleware may have more kinds of screens.
    const UiType* uiType = Find(UI_TYPES, name);
    if (uiType != nullptr)
    {
        uiType->handle(*this, request, uiId, static_cast<unsigned char>(sourceId));
    }
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

    // Also for an unknown position: a menu that stays open would cover the screens that follow.
    app_context_manager_request_task(MENU_TASK, "stop");

    const MenuPosition* position = Find(MENU_POSITIONS, name);
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
