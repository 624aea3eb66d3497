#pragma once

#include <string>
#include <vector>

namespace VESKAR_APP
{

/**
 * Shows one screen at a time. A new screen replaces the one that is shown, which is answered as closed.
 *
 * Every show operation carries the middleware's ids of the screen, which come back in its answer. The source id also
 * decides how the screen is presented: 254 privileged, 255 normal, any other value a screen of the access module.
 * Image sizes are design pixels, of a screen of 1920x1080. All operations run on the main thread and return whether
 * the screen is shown; what went wrong is in the log.
 */
class IWindowManager
{
public:
    using Text = std::string;
    using Texts = std::vector<std::string>;

    virtual bool ShowMmiMessage(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                const Text& bottom, const Text& text, const Texts& buttons, bool noClose) = 0;

    virtual bool ShowMmiList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                             const Text& format, bool firstRowHeader, const Texts& entries, const Texts& buttons,
                             bool selectable) = 0;

    virtual bool ShowMmiPinEntry(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                 const Text& bottom, unsigned char pinLength, const Text& extra) = 0;

    /** The third text is the label of the button. Updates the shown progress where the ids are the same. */
    virtual bool ShowProgress(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                              unsigned char percent) = 0;

    virtual bool ShowLoading(int uiId, unsigned char sourceId, Text text, const Texts& buttons, int parameter) = 0;

    virtual bool ShowMessage(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                             const Text& text, const Texts& buttons, bool noClose) = 0;

    virtual bool ShowImage(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                           const Text& imageLocation, int width, int height, const Texts& buttons, bool noClose) = 0;

    virtual bool ShowList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                          const Texts& entries, const Text& format, bool firstRowHeader, const Texts& buttons,
                          bool selectable) = 0;

    virtual bool ShowMultipleList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                  const Text& bottom, const Texts& entries, const Text& format, bool firstRowHeader,
                                  const Texts& buttons, bool selectable) = 0;

    virtual bool ShowPinManager(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                const Text& bottom, unsigned char pinLength, const Text& extra) = 0;

    virtual bool ShowMultipleImageList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                       const Text& bottom, const Texts& entries, const Text& format,
                                       bool firstRowHeader, const Texts& buttons, const Texts& imageLocations,
                                       int width, int height, bool selectable) = 0;

    virtual bool ShowTestPopup(int uiId, unsigned char sourceId, int testId) = 0;

    /** Closes the screen with this id, or with 0 whatever is shown. Source ids from 254 answer the middleware. */
    virtual bool Close(int uiId, unsigned char sourceId) = 0;

    /** Shows sample screen 0 to 22; false for any other. */
    virtual bool Test(int testId) = 0;

    virtual ~IWindowManager() = default;
};

} // namespace VESKAR_APP
