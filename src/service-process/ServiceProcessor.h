#pragma once

#include <string>
#include <vector>

#include <app_control.h>

namespace VESKAR_APP
{

class IWindowManager;

/**
 * Turns one service request into one action: a screen of the window manager for the middleware, a menu position of the
 * controller for the TV's settings menu. Keeps nothing between requests.
 *
 * A request that cannot be routed is an error line in the log, and what is shown stays. A missing value of a screen is
 * an error line too, but the screen is shown, with the default. Main thread; takes no lock.
 */
class ServiceProcessor
{
public:
    explicit ServiceProcessor(IWindowManager& windowManager);

    /** True when the request has a signal type, even where nothing could be done. The request stays the caller's. */
    bool HandleService(app_control_h const& request);

private:
    /** A kind of screen: its name in a request, and its handler. */
    struct UiType;
    static const UiType UI_TYPES[];

    void m_HandleRequestFromMW(app_control_h const& request);
    void m_HandleRequestFromMenu(app_control_h const& request);
    bool m_HandleClose(app_control_h const& request, int uiId, unsigned char sourceId);

    bool m_HandleMessage(app_control_h const& request, int uiId, unsigned char sourceId);
    bool m_HandleImage(app_control_h const& request, int uiId, unsigned char sourceId);
    bool m_HandleList(app_control_h const& request, int uiId, unsigned char sourceId, bool selectable);
    bool m_HandleMultipleList(app_control_h const& request, int uiId, unsigned char sourceId, bool selectable);
    bool m_HandleMultipleImageList(app_control_h const& request, int uiId, unsigned char sourceId);
    bool m_HandleProgressWindow(app_control_h const& request, int uiId, unsigned char sourceId);
    bool m_HandleLoadingWindow(app_control_h const& request, int uiId, unsigned char sourceId);
    bool m_HandlePinEntry(app_control_h const& request, int uiId, unsigned char sourceId);

    // Read one value of a screen, then log the label with whether the request has it.
    template <typename Value>
    void m_ReadParameter(app_control_h const& request, const char* label, const char* key, Value& value);
    void m_ReadStrings(app_control_h const& request, const char* label, const char* key,
                       std::vector<std::string>& values);

    struct CommonTexts
    {
        std::string title;
        std::string sub;
        std::string bottom;
        std::vector<std::string> buttons;
    };
    /** `subLabel` names the sub-title in the log; not all kinds of screen call it the same. */
    CommonTexts m_ReadCommonTexts(app_control_h const& request, const char* subLabel);

    struct ListRequest : CommonTexts
    {
        std::vector<std::string> entries;
        std::string format;
        int firstRowHeader;
    };
    ListRequest m_ReadList(app_control_h const& request);

    // The readers return true when the key is there. Otherwise they log an error, and the output keeps its value.

    /** A text that does not begin with a number gives 0. */
    bool m_GetParameter(app_control_h const& request, const char* key, int& value);
    bool m_GetParameter(app_control_h const& request, const char* key, std::string& value);
    /** Appends to `values`. */
    bool m_GetStrings(app_control_h const& request, const char* key, std::vector<std::string>& values);
    /** A byte for the first character of each element; appends to `data`. */
    bool m_GetDataArray(app_control_h const& request, const char* key, std::vector<unsigned char>& data);

    /** Writes one number into a request; false when the platform refuses it. */
    bool m_AddParameter(app_control_h const& request, const char* key, int value);

    IWindowManager& m_windowManager;
};

} // namespace VESKAR_APP
