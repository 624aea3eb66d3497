#pragma once

#include "IApplicationFramework.h"
#include "IUserInteraction.h"
#include "IWindowManager.h"
#include "KeySubscriber.h"
#include "OneShotTimerCallback.h"

#include <functional>
#include <memory>

#include <Elementary.h>

namespace VESKAR_API
{
class IVesKarController;
}

namespace VESKAR_APP
{

class BaseDisplay;

/**
 * Owns the application's one window and the one display that may be shown in it, answers the middleware for it, and
 * ends the application when nobody uses it.
 *
 * Main thread; takes no lock. A display that was answered is only hidden: it is still on the call stack then, and goes
 * when the next one replaces it.
 */
class WindowManager : public IWindowManager, public IApplicationFramework, public IUserInteraction
{
public:
    /** The two callbacks run on the timers' threads when a time-out has expired. */
    WindowManager(std::function<void()> idleCallback, std::function<void()> visibleCallback);
    ~WindowManager() override;

    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    bool ShowMmiMessage(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                        const Text& text, const Texts& buttons, bool noClose) override;
    bool ShowMmiList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                     const Text& format, bool firstRowHeader, const Texts& entries, const Texts& buttons,
                     bool selectable) override;
    bool ShowMmiPinEntry(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                         unsigned char pinLength, const Text& extra) override;
    bool ShowProgress(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                      unsigned char percent) override;
    bool ShowLoading(int uiId, unsigned char sourceId, Text text, const Texts& buttons, int parameter) override;
    bool ShowMessage(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                     const Text& text, const Texts& buttons, bool noClose) override;
    bool ShowImage(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                   const Text& imageLocation, int width, int height, const Texts& buttons, bool noClose) override;
    bool ShowList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                  const Texts& entries, const Text& format, bool firstRowHeader, const Texts& buttons,
                  bool selectable) override;
    bool ShowMultipleList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                          const Texts& entries, const Text& format, bool firstRowHeader, const Texts& buttons,
                          bool selectable) override;
    bool ShowPinManager(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                        unsigned char pinLength, const Text& extra) override;
    bool ShowMultipleImageList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                               const Texts& entries, const Text& format, bool firstRowHeader, const Texts& buttons,
                               const Texts& imageLocations, int width, int height, bool selectable) override;
    bool ShowTestPopup(int uiId, unsigned char sourceId, int testId) override;
    bool Close(int uiId, unsigned char sourceId) override;
    bool Test(int testId) override;

    bool ShowMmiMultipleImageList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                  const Text& bottom, const Texts& entries, const Text& format, bool firstRowHeader,
                                  const Texts& buttons, const Texts& imageLocations, int width, int height,
                                  bool selectable);
    bool ShowMmiMultipleList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                             const Text& format, bool firstRowHeader, const Texts& entries, const Texts& buttons,
                             bool selectable);

    void Pause() override;
    void Resume() override;
    void Exit() override;
    void Terminate() override;

    void ExitKey() override;
    void BackKey() override;
    void KeyPressed() override;
    void ButtonPressed(unsigned char button) override;
    void ItemSelected(unsigned char item) override;
    void ItemsSelected(std::string items) override;
    void PinEntered(std::string pin) override;

    /** End the application's loop. The answer for a screen that is still shown comes from Terminate(). */
    void IdleTimeout();
    void VisibleTimeout();

    /** Whether the time-out still stands: it has run out and nothing cancelled or restarted it since. */
    bool IdleTimeoutExpired();
    bool VisibleTimeoutExpired();

private:
    bool m_Present(std::unique_ptr<BaseDisplay> display, const int& uiId, const unsigned char& sourceId, bool noClose);
    void m_Remove();
    void m_ClosedByHost();

    /** The common part of the list builders; `images` is what an image list has more than the others. */
    template <typename List, typename... Images>
    bool m_ShowList(std::unique_ptr<List> list, int uiId, unsigned char sourceId, bool noClose, const Text& title,
                    const Text& sub, const Text& bottom, const Text& format, bool firstRowHeader, const Texts& entries,
                    const Texts& buttons, const Images&... images);

    /** The common end of all builders. */
    bool m_PresentOrLog(std::unique_ptr<BaseDisplay> display, int uiId, unsigned char sourceId, bool noClose);

    /** Whether a screen is shown that the middleware knows by its ids. */
    bool m_IsAnswerable() const;
    void m_SendResponse(int kind, unsigned char button, unsigned char item, const std::string& data);

    void m_LockKeysForSource(unsigned char sourceId);
    void m_ReleaseAllKeys();

    bool m_HotelFactoryMode();
    void m_LaunchHotelFactoryMenu();

    std::unique_ptr<BaseDisplay> m_display;
    Evas_Object* m_window;
    KeySubscriber m_keySubscriber;
    VESKAR_API::IVesKarController* m_controller;
    int m_uiId;
    unsigned char m_sourceId;
    OneShotTimerCallback m_idleTimer;
    OneShotTimerCallback m_visibleTimer;
};

} // namespace VESKAR_APP
