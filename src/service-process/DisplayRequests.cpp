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

/** For the log, whose texts are composed at every level: a line that tells of a read also makes it. */
const char* Word(bool present)
{
    return present ? "true" : "false";
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
    LOG_INFO("title:" << Word(m_GetParameter(request, RequestKeys::TITLE, title)));
    LOG_INFO("subtitle:" << Word(m_GetParameter(request, RequestKeys::SUB, sub)));
    LOG_INFO("bottom:" << Word(m_GetParameter(request, RequestKeys::BOTTOM, bottom)));
    LOG_INFO("buttons:" << Word(m_GetStrings(request, RequestKeys::BUTTONS, buttons)));
    LOG_INFO("text:" << Word(m_GetParameter(request, RequestKeys::TEXT, text)));
    LOG_INFO("noclose:" << Word(m_GetParameter(request, RequestKeys::NO_CLOSE, noClose)));
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
    LOG_INFO("title:" << Word(m_GetParameter(request, RequestKeys::TITLE, title)));
    LOG_INFO("subtitle:" << Word(m_GetParameter(request, RequestKeys::SUB, sub)));
    LOG_INFO("bottom:" << Word(m_GetParameter(request, RequestKeys::BOTTOM, bottom)));
    LOG_INFO("buttons:" << Word(m_GetStrings(request, RequestKeys::BUTTONS, buttons)));
    LOG_INFO("imageLocation:" << Word(m_GetParameter(request, RequestKeys::IMAGE_LOCATION, imageLocation)));
    LOG_INFO("width:" << Word(m_GetParameter(request, RequestKeys::IMAGE_WIDTH, width)));
    LOG_INFO("height:" << Word(m_GetParameter(request, RequestKeys::IMAGE_HEIGHT, height)));
    LOG_INFO("noclose:" << Word(m_GetParameter(request, RequestKeys::NO_CLOSE, noClose)));
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
    LOG_INFO("image locations:" << Word(m_GetStrings(request, RequestKeys::IMAGE_LOCATIONS, imageLocations)));
    LOG_INFO("width:" << Word(m_GetParameter(request, RequestKeys::IMAGE_WIDTH, width)));
    LOG_INFO("height:" << Word(m_GetParameter(request, RequestKeys::IMAGE_HEIGHT, height)));
    LOG_INFO("selectable:" << Word(m_GetParameter(request, RequestKeys::SELECTABLE, selectable)));
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
    LOG_INFO("title:" << Word(m_GetParameter(request, RequestKeys::TITLE, title)));
    LOG_INFO("text:" << Word(m_GetParameter(request, RequestKeys::TEXT, text)));
    LOG_INFO("percent:" << Word(m_GetParameter(request, RequestKeys::PERCENT, percent)));
    LOG_INFO("buttons:" << Word(m_GetStrings(request, RequestKeys::BUTTONS, buttons)));
    const std::string firstButton = buttons.empty() ? std::string() : buttons.front();
    return m_windowManager.ShowProgress(uiId, sourceId, title, text, firstButton, static_cast<unsigned char>(percent));
}

bool ServiceProcessor::m_HandleLoadingWindow(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string text;
    Texts buttons;
    int percent = 0;
    // The busy indicator's text is its title.
    LOG_INFO("title:" << Word(m_GetParameter(request, RequestKeys::TEXT, text)));
    LOG_INFO("percent:" << Word(m_GetParameter(request, RequestKeys::PERCENT, percent)));
    LOG_INFO("buttons:" << Word(m_GetStrings(request, RequestKeys::BUTTONS, buttons)));
    return m_windowManager.ShowLoading(uiId, sourceId, text, buttons, percent);
}

bool ServiceProcessor::m_HandlePinEntry(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string title;
    std::string sub;
    std::string text;
    std::string bottom;
    int pinLength = 0;
    LOG_INFO("title:" << Word(m_GetParameter(request, RequestKeys::TITLE, title)));
    LOG_INFO("subtitle:" << Word(m_GetParameter(request, RequestKeys::SUB, sub)));
    LOG_INFO("text:" << Word(m_GetParameter(request, RequestKeys::TEXT, text)));
    LOG_INFO("length:" << Word(m_GetParameter(request, RequestKeys::PIN_LENGTH, pinLength)));
    LOG_INFO("bottom:" << Word(m_GetParameter(request, RequestKeys::BOTTOM, bottom)));
    return m_windowManager.ShowPinManager(uiId, sourceId, title, sub, text, static_cast<unsigned char>(pinLength),
                                          bottom);
}

ServiceProcessor::ListRequest ServiceProcessor::m_ReadList(app_control_h const& request)
{
    ListRequest list;
    LOG_INFO("title:" << Word(m_GetParameter(request, RequestKeys::TITLE, list.title)));
    LOG_INFO("sub:" << Word(m_GetParameter(request, RequestKeys::SUB, list.sub)));
    LOG_INFO("bottom:" << Word(m_GetParameter(request, RequestKeys::BOTTOM, list.bottom)));
    LOG_INFO("buttons:" << Word(m_GetStrings(request, RequestKeys::BUTTONS, list.buttons)));
    LOG_INFO("entries:" << Word(m_GetStrings(request, RequestKeys::ENTRIES, list.entries)));
    LOG_INFO("formatting:" << Word(m_GetParameter(request, RequestKeys::FORMAT, list.format)));
    LOG_INFO("firstRowHeader:" << Word(m_GetParameter(request, RequestKeys::HEADER, list.firstRowHeader)));
    return list;
}

} // namespace VESKAR_APP
