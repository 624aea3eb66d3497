// The service processor's handlers of the display requests: each reads its screen's values and makes one show call.

#include "IWindowManager.h"
#include "Log.h"
#include "RequestKeys.h"
#include "ServiceProcessor.h"

namespace VESKAR_APP
{

namespace
{

using Texts = std::vector<std::string>;

void LogPresence(const char* label, bool present)
{
    LOG_INFO(label << (present ? "true" : "false"));
}

} // namespace

bool ServiceProcessor::m_HandleMessage(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string title;
    std::string sub;
    std::string bottom;
    std::string text;
    Texts buttons;
    int noClose = 0;
    LogPresence("title:", m_GetParameter(request, RequestKeys::TITLE, title));
    LogPresence("subtitle:", m_GetParameter(request, RequestKeys::SUB, sub));
    LogPresence("bottom:", m_GetParameter(request, RequestKeys::BOTTOM, bottom));
    LogPresence("buttons:", m_GetStrings(request, RequestKeys::BUTTONS, buttons));
    LogPresence("text:", m_GetParameter(request, RequestKeys::TEXT, text));
    LogPresence("noclose:", m_GetParameter(request, RequestKeys::NO_CLOSE, noClose));
    return m_windowManager.ShowMessage(uiId, sourceId, title, sub, bottom, text, buttons, noClose != 0);
}

bool ServiceProcessor::m_HandleImage(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string title;
    std::string sub;
    std::string bottom;
    std::string imageLocation;
    Texts buttons;
    int width = 0;
    int height = 0;
    int noClose = 0;
    LogPresence("title:", m_GetParameter(request, RequestKeys::TITLE, title));
    LogPresence("subtitle:", m_GetParameter(request, RequestKeys::SUB, sub));
    LogPresence("bottom:", m_GetParameter(request, RequestKeys::BOTTOM, bottom));
    LogPresence("buttons:", m_GetStrings(request, RequestKeys::BUTTONS, buttons));
    LogPresence("imageLocation:", m_GetParameter(request, RequestKeys::IMAGE_LOCATION, imageLocation));
    LogPresence("width:", m_GetParameter(request, RequestKeys::IMAGE_WIDTH, width));
    LogPresence("height:", m_GetParameter(request, RequestKeys::IMAGE_HEIGHT, height));
    LogPresence("noclose:", m_GetParameter(request, RequestKeys::NO_CLOSE, noClose));
    return m_windowManager.ShowImage(uiId, sourceId, title, sub, bottom, imageLocation, width, height, buttons,
                                     noClose != 0);
}

bool ServiceProcessor::m_HandleList(app_control_h const& request, int uiId, unsigned char sourceId, bool selectable)
{
    const ListRequest list = m_ReadList(request);
    return m_windowManager.ShowList(uiId, sourceId, list.title, list.sub, list.bottom, list.entries, list.format,
                                    list.firstRowHeader != 0, list.buttons, selectable);
}

bool ServiceProcessor::m_HandleMultipleList(app_control_h const& request, int uiId, unsigned char sourceId,
                                            bool selectable)
{
    const ListRequest list = m_ReadList(request);
    return m_windowManager.ShowMultipleList(uiId, sourceId, list.title, list.sub, list.bottom, list.entries,
                                            list.format, list.firstRowHeader != 0, list.buttons, selectable);
}

bool ServiceProcessor::m_HandleMultipleImageList(app_control_h const& request, int uiId, unsigned char sourceId)
{
    const ListRequest list = m_ReadList(request);
    Texts imageLocations;
    int width = 0;
    int height = 0;
    int selectable = 0;
    LogPresence("image locations:", m_GetStrings(request, RequestKeys::IMAGE_LOCATIONS, imageLocations));
    LogPresence("width:", m_GetParameter(request, RequestKeys::IMAGE_WIDTH, width));
    LogPresence("height:", m_GetParameter(request, RequestKeys::IMAGE_HEIGHT, height));
    LogPresence("selectable:", m_GetParameter(request, RequestKeys::SELECTABLE, selectable));
    return m_windowManager.ShowMultipleImageList(uiId, sourceId, list.title, list.sub, list.bottom, list.entries,
                                                 list.format, list.firstRowHeader != 0, list.buttons, imageLocations,
                                                 width, height, selectable != 0);
}

bool ServiceProcessor::m_HandleProgressWindow(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string title;
    std::string text;
    Texts buttons;
    int percent = 0;
    LogPresence("title:", m_GetParameter(request, RequestKeys::TITLE, title));
    LogPresence("text:", m_GetParameter(request, RequestKeys::TEXT, text));
    LogPresence("percent:", m_GetParameter(request, RequestKeys::PERCENT, percent));
    LogPresence("buttons:", m_GetStrings(request, RequestKeys::BUTTONS, buttons));
    const std::string firstButton = buttons.empty() ? std::string() : buttons.front();
    return m_windowManager.ShowProgress(uiId, sourceId, title, text, firstButton, static_cast<unsigned char>(percent));
}

bool ServiceProcessor::m_HandleLoadingWindow(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string text;
    Texts buttons;
    int percent = 0;
    // The busy indicator's text is its title.
    LogPresence("title:", m_GetParameter(request, RequestKeys::TEXT, text));
    LogPresence("percent:", m_GetParameter(request, RequestKeys::PERCENT, percent));
    LogPresence("buttons:", m_GetStrings(request, RequestKeys::BUTTONS, buttons));
    return m_windowManager.ShowLoading(uiId, sourceId, text, buttons, percent);
}

bool ServiceProcessor::m_HandlePinEntry(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string title;
    std::string sub;
    std::string text;
    std::string bottom;
    int pinLength = 0;
    LogPresence("title:", m_GetParameter(request, RequestKeys::TITLE, title));
    LogPresence("subtitle:", m_GetParameter(request, RequestKeys::SUB, sub));
    LogPresence("text:", m_GetParameter(request, RequestKeys::TEXT, text));
    LogPresence("length:", m_GetParameter(request, RequestKeys::PIN_LENGTH, pinLength));
    LogPresence("bottom:", m_GetParameter(request, RequestKeys::BOTTOM, bottom));
    return m_windowManager.ShowPinManager(uiId, sourceId, title, sub, text, static_cast<unsigned char>(pinLength),
                                          bottom);
}

ServiceProcessor::ListRequest ServiceProcessor::m_ReadList(app_control_h const& request)
{
    ListRequest list;
    LogPresence("title:", m_GetParameter(request, RequestKeys::TITLE, list.title));
    LogPresence("sub:", m_GetParameter(request, RequestKeys::SUB, list.sub));
    LogPresence("bottom:", m_GetParameter(request, RequestKeys::BOTTOM, list.bottom));
    LogPresence("buttons:", m_GetStrings(request, RequestKeys::BUTTONS, list.buttons));
    LogPresence("entries:", m_GetStrings(request, RequestKeys::ENTRIES, list.entries));
    LogPresence("formatting:", m_GetParameter(request, RequestKeys::FORMAT, list.format));
    LogPresence("firstRowHeader:", m_GetParameter(request, RequestKeys::HEADER, list.firstRowHeader));
    return list;
}

} // namespace VESKAR_APP
