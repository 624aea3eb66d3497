#pragma once

#include "IApplicationFramework.h"
#include "IUserInteraction.h"
#include "IWindowManager.h"
#include "KeySubscriber.h"
#include "OneShotTimerCallback.h"

#include <functional>
#include <memory>
#include <string>

#include <Elementary.h>

namespace VESKAR_API
{
class IVesKarController;
}

namespace VESKAR_APP
{

class BaseDisplay;

/**
 * Owns the application's one window and the one display that may be shown in it, sends its answers to the middleware,
 * and ends the application when nobody uses it.
 *
 * Main thread; takes no lock. A display that has its answer is only hidden, because it is still on the call stack. It
 * is deleted when the next one replaces it.
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

    /** End the application's loop. Terminate() then sends the answer for a screen that is still shown. */
    void IdleTimeout();
    void VisibleTimeout();

    /** Whether the time is up and the timer was neither cancelled nor started again since. */
    bool IdleTimeoutExpired();
    bool VisibleTimeoutExpired();

private:
    bool m_Present(std::unique_ptr<BaseDisplay> display, const int& uiId, const unsigned char& sourceId, bool noClose);
    void m_Remove();
    void m_ClosedByHost();

    /** The common part of the list builders. Only an image list has `images`. */
    template <typename List, typename... Images>
    bool m_ShowList(std::unique_ptr<List> list, int uiId, unsigned char sourceId, bool noClose, const Text& title,
                    const Text& sub, const Text& bottom, const Text& format, bool firstRowHeader, const Texts& entries,
                    const Texts& buttons, const Images&... images);

    /** The common end of all builders. */
    bool m_PresentOrLog(std::unique_ptr<BaseDisplay> display, int uiId, unsigned char sourceId, bool noClose);

    /** Answers for the screen and removes it. False, and nothing is done, when there is none with ids to answer for. */
    bool m_Answer(int kind, unsigned char button = 0, unsigned char item = 0, const std::string& data = {});
    void m_SendResponse(int kind, unsigned char button = 0, unsigned char item = 0, const std::string& data = {});

    /** For the log. */
    std::string m_ShownIds() const;

    void m_LockKeysForSource(unsigned char sourceId);
    void m_ReleaseAllKeys();

    /** Whether this application was started from a hotel's factory menu. */
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
