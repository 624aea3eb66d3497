#pragma once

#include <string>
#include <vector>

namespace VESKAR_APP
{

/**
 * Shows one screen at a time. A new screen replaces the shown one, for which the middleware gets the answer "closed".
 *
 * Every show operation has the middleware's ids of the screen, which its answer repeats. The source id also decides how
 * the screen is presented: 254 privileged, 255 normal, any other value a screen of the access module. Image sizes are
 * pixels of a 1920x1080 screen. All operations run on the main thread and return whether the screen is shown. The log
 * has the reason when it is not.
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

    /** The third text is the label of the button. Updates the shown progress if it has the same ids. */
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

    /** Closes the screen with this id; 0 means any screen. From source id 254 on, the middleware gets an answer. */
    virtual bool Close(int uiId, unsigned char sourceId) = 0;

    /** Shows one of the sample screens, 0 to 22. */
    virtual bool Test(int testId) = 0;

    virtual ~IWindowManager() = default;
};

} // namespace VESKAR_APP
