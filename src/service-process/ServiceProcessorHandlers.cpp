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

template <typename Value>
void ServiceProcessor::m_ReadParameter(app_control_h const& request, const char* label, const char* key, Value& value)
{
    LogPresence(label, m_GetParameter(request, key, value));
}

void ServiceProcessor::m_ReadStrings(app_control_h const& request, const char* label, const char* key, Texts& values)
{
    LogPresence(label, m_GetStrings(request, key, values));
}

ServiceProcessor::CommonTexts ServiceProcessor::m_ReadCommonTexts(app_control_h const& request, const char* subLabel)
{
    CommonTexts texts;
    m_ReadParameter(request, "title:", RequestKeys::TITLE, texts.title);
    m_ReadParameter(request, subLabel, RequestKeys::SUB, texts.sub);
    m_ReadParameter(request, "bottom:", RequestKeys::BOTTOM, texts.bottom);
    m_ReadStrings(request, "buttons:", RequestKeys::BUTTONS, texts.buttons);
    return texts;
}

ServiceProcessor::ListRequest ServiceProcessor::m_ReadList(app_control_h const& request)
{
    ListRequest list{m_ReadCommonTexts(request, "sub:"), {}, {}, 0};
    m_ReadStrings(request, "entries:", RequestKeys::ENTRIES, list.entries);
    m_ReadParameter(request, "formatting:", RequestKeys::FORMAT, list.format);
    m_ReadParameter(request, "firstRowHeader:", RequestKeys::HEADER, list.firstRowHeader);
    return list;
}

bool ServiceProcessor::m_HandleMessage(app_control_h const& request, int uiId, unsigned char sourceId)
{
    const CommonTexts texts = m_ReadCommonTexts(request, "subtitle:");
    std::string text;
    int noClose = 0;
    m_ReadParameter(request, "text:", RequestKeys::TEXT, text);
    m_ReadParameter(request, "noclose:", RequestKeys::NO_CLOSE, noClose);
    return m_windowManager.ShowMessage(uiId, sourceId, texts.title, texts.sub, texts.bottom, text, texts.buttons,
                                       noClose != 0);
}

bool ServiceProcessor::m_HandleImage(app_control_h const& request, int uiId, unsigned char sourceId)
{
    const CommonTexts texts = m_ReadCommonTexts(request, "subtitle:");
    std::string imageLocation;
    int width = 0;
    int height = 0;
    int noClose = 0;
    m_ReadParameter(request, "imageLocation:", RequestKeys::IMAGE_LOCATION, imageLocation);
    m_ReadParameter(request, "width:", RequestKeys::IMAGE_WIDTH, width);
    m_ReadParameter(request, "height:", RequestKeys::IMAGE_HEIGHT, height);
    m_ReadParameter(request, "noclose:", RequestKeys::NO_CLOSE, noClose);
    return m_windowManager.ShowImage(uiId, sourceId, texts.title, texts.sub, texts.bottom, imageLocation, width, height,
                                     texts.buttons, noClose != 0);
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
    m_ReadStrings(request, "image locations:", RequestKeys::IMAGE_LOCATIONS, imageLocations);
    m_ReadParameter(request, "width:", RequestKeys::IMAGE_WIDTH, width);
    m_ReadParameter(request, "height:", RequestKeys::IMAGE_HEIGHT, height);
    m_ReadParameter(request, "selectable:", RequestKeys::SELECTABLE, selectable);
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
    m_ReadParameter(request, "title:", RequestKeys::TITLE, title);
    m_ReadParameter(request, "text:", RequestKeys::TEXT, text);
    m_ReadParameter(request, "percent:", RequestKeys::PERCENT, percent);
    m_ReadStrings(request, "buttons:", RequestKeys::BUTTONS, buttons);
    const std::string firstButton = buttons.empty() ? std::string() : buttons.front();
    return m_windowManager.ShowProgress(uiId, sourceId, title, text, firstButton, static_cast<unsigned char>(percent));
}

bool ServiceProcessor::m_HandleLoadingWindow(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string text;
    Texts buttons;
    int percent = 0;
    // The busy indicator shows its text where other screens have their title.
    m_ReadParameter(request, "title:", RequestKeys::TEXT, text);
    m_ReadParameter(request, "percent:", RequestKeys::PERCENT, percent);
    m_ReadStrings(request, "buttons:", RequestKeys::BUTTONS, buttons);
    return m_windowManager.ShowLoading(uiId, sourceId, text, buttons, percent);
}

bool ServiceProcessor::m_HandlePinEntry(app_control_h const& request, int uiId, unsigned char sourceId)
{
    std::string title;
    std::string sub;
    std::string text;
    std::string bottom;
    int pinLength = 0;
    m_ReadParameter(request, "title:", RequestKeys::TITLE, title);
    m_ReadParameter(request, "subtitle:", RequestKeys::SUB, sub);
    m_ReadParameter(request, "text:", RequestKeys::TEXT, text);
    m_ReadParameter(request, "length:", RequestKeys::PIN_LENGTH, pinLength);
    m_ReadParameter(request, "bottom:", RequestKeys::BOTTOM, bottom);
    return m_windowManager.ShowPinManager(uiId, sourceId, title, sub, text, static_cast<unsigned char>(pinLength),
                                          bottom);
}

} // namespace VESKAR_APP
