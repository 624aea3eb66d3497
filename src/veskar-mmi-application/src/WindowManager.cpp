#include "WindowManager.h"

#include "EflGuard.h"
#include "ImageListPopup.h"
#include "ImagePopup.h"
#include "ListWindow.h"
#include "LoadingPopup.h"
#include "Log.h"
#include "MessagePopup.h"
#include "MultipleListWindow.h"
#include "PinEntry.h"
#include "ProgressPopup.h"
#include "Secret.h"
#include "TestMode.h"
#include "TestPopup.h"
#include "TimeOuts.h"

#include <IVesKarController.h>
#include <ea.h>

namespace VESKAR_APP
{

namespace
{

constexpr int NO_UI_ID = 0;
constexpr unsigned char NO_SOURCE_ID = 100;
constexpr unsigned char PRIVILEGED_SOURCE_ID = 254;
constexpr unsigned char NORMAL_SOURCE_ID = 255;

constexpr int ANSWERED = 0;
constexpr int CLOSED = 2;
constexpr int BACK = 3;

constexpr const char* NO_UI = "No UI to close - ";

} // namespace

WindowManager::WindowManager(std::function<void()> idleCallback, std::function<void()> visibleCallback)
    : m_window(EFL_GUARD(elm_win_add, nullptr, "veskar-app", ELM_WIN_DIALOG_BASIC)), m_keySubscriber(m_window),
      m_controller(VESKAR_API::IVesKarController::Instance()), m_uiId(NO_UI_ID), m_sourceId(NO_SOURCE_ID),
      m_idleTimer(std::move(idleCallback)), m_visibleTimer(std::move(visibleCallback))
{
    LOG_ENTRY();
    if (m_window == nullptr)
    {
        LOG_ERROR("failed to create main window");
        return;
    }
    if (m_controller == nullptr)
    {
        LOG_ERROR("failed to create veskar controller");
        return;
    }

    const MainLoopSection section;
    ea_init();
    elm_win_alpha_set(m_window, EINA_TRUE);
    elm_win_autodel_set(m_window, EINA_TRUE);
    evas_object_show(m_window);
    evas_object_move(m_window, 0, 0);
}

WindowManager::~WindowManager()
{
    m_ReleaseAllKeys();
    m_display.reset();
    if (m_window != nullptr)
    {
        EFL_GUARD(evas_object_del, m_window);
        m_window = nullptr;
    }
    m_idleTimer.CancelTimer();
    m_visibleTimer.CancelTimer();
}

bool WindowManager::ShowMmiMessage(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                   const Text& bottom, const Text& text, const Texts& buttons, bool noClose)
{
    LOG_ENTRY();
    return m_PresentOrLog(std::make_unique<MessagePopup>(*this, title, sub, text, bottom, buttons, noClose, m_window),
                          uiId, sourceId, noClose);
}

bool WindowManager::ShowMmiList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                const Text& bottom, const Text& format, bool firstRowHeader, const Texts& entries,
                                const Texts& buttons, bool selectable)
{
    LOG_ENTRY();
    return m_ShowList(std::make_unique<ListWindow>(*this, selectable, m_window), uiId, sourceId, false, title, sub,
                      bottom, format, firstRowHeader, entries, buttons);
}

bool WindowManager::ShowMmiMultipleList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                        const Text& bottom, const Text& format, bool firstRowHeader,
                                        const Texts& entries, const Texts& buttons, bool selectable)
{
    LOG_ENTRY();
    return m_ShowList(std::make_unique<MultipleListWindow>(*this, selectable, m_window), uiId, sourceId, false, title,
                      sub, bottom, format, firstRowHeader, entries, buttons);
}

bool WindowManager::ShowMmiMultipleImageList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                             const Text& bottom, const Texts& entries, const Text& format,
                                             bool firstRowHeader, const Texts& buttons, const Texts& imageLocations,
                                             int width, int height, bool selectable)
{
    LOG_ENTRY();
    // An image list never starts the visible time-out.
    return m_ShowList(std::make_unique<ImageListPopup>(*this, selectable, m_window), uiId, sourceId, true, title, sub,
                      bottom, format, firstRowHeader, entries, buttons, imageLocations, width, height);
}

bool WindowManager::ShowMmiPinEntry(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                    const Text& bottom, unsigned char pinLength, const Text& extra)
{
    LOG_ENTRY();
    if (!m_PresentOrLog(std::make_unique<PinEntry>(*this, title, sub, bottom, pinLength, extra, m_window), uiId,
                        sourceId, false))
    {
        return false;
    }
    // The PIN field needs the digits and, for More, the media keys.
    m_keySubscriber.LockNumberKeys();
    m_keySubscriber.LockPVRKeys();
    return true;
}

bool WindowManager::ShowProgress(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                 const Text& bottom, unsigned char percent)
{
    LOG_ENTRY();
    auto* shown = dynamic_cast<ProgressPopup*>(m_display.get());
    if (shown != nullptr && m_uiId == uiId && m_sourceId == sourceId && shown->Update(title, sub, bottom, percent))
    {
        LOG_INFO("Updated exiting progress");
        return true;
    }
    return m_PresentOrLog(std::make_unique<ProgressPopup>(*this, title, sub, bottom, percent, m_window), uiId, sourceId,
                          false);
}

bool WindowManager::ShowLoading(int uiId, unsigned char sourceId, Text text, const Texts& buttons, int parameter)
{
    LOG_ENTRY();
    return m_PresentOrLog(std::make_unique<LoadingPopup>(*this, std::move(text), buttons, parameter, m_window), uiId,
                          sourceId, false);
}

bool WindowManager::ShowImage(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                              const Text& imageLocation, int width, int height, const Texts& buttons, bool noClose)
{
    LOG_ENTRY();
    return m_PresentOrLog(std::make_unique<ImagePopup>(*this, title, sub, imageLocation, width, height, bottom, buttons,
                                                       noClose, m_window),
                          uiId, sourceId, noClose);
}

bool WindowManager::ShowTestPopup(int uiId, unsigned char sourceId, int /*testId*/)
{
    LOG_ENTRY();
    return m_PresentOrLog(std::make_unique<TestPopup>(*this, 0, m_window), uiId, sourceId, false);
}

bool WindowManager::ShowMessage(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                const Text& bottom, const Text& text, const Texts& buttons, bool noClose)
{
    LOG_ENTRY();
    return ShowMmiMessage(uiId, sourceId, title, sub, bottom, text, buttons, noClose);
}

bool WindowManager::ShowList(int uiId, unsigned char sourceId, const Text& title, const Text& sub, const Text& bottom,
                             const Texts& entries, const Text& format, bool firstRowHeader, const Texts& buttons,
                             bool selectable)
{
    LOG_ENTRY();
    return ShowMmiList(uiId, sourceId, title, sub, bottom, format, firstRowHeader, entries, buttons, selectable);
}

bool WindowManager::ShowMultipleList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                     const Text& bottom, const Texts& entries, const Text& format, bool firstRowHeader,
                                     const Texts& buttons, bool selectable)
{
    LOG_ENTRY();
    return ShowMmiMultipleList(uiId, sourceId, title, sub, bottom, format, firstRowHeader, entries, buttons,
                               selectable);
}

bool WindowManager::ShowPinManager(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                   const Text& bottom, unsigned char pinLength, const Text& extra)
{
    LOG_ENTRY();
    return ShowMmiPinEntry(uiId, sourceId, title, sub, bottom, pinLength, extra);
}

bool WindowManager::ShowMultipleImageList(int uiId, unsigned char sourceId, const Text& title, const Text& sub,
                                          const Text& bottom, const Texts& entries, const Text& format,
                                          bool firstRowHeader, const Texts& buttons, const Texts& imageLocations,
                                          int width, int height, bool selectable)
{
    LOG_ENTRY();
    return ShowMmiMultipleImageList(uiId, sourceId, title, sub, bottom, entries, format, firstRowHeader, buttons,
                                    imageLocations, width, height, selectable);
}

bool WindowManager::Test(int testId)
{
    return ShowTestCase(*this, testId);
}

template <typename List, typename... Images>
bool WindowManager::m_ShowList(std::unique_ptr<List> list, int uiId, unsigned char sourceId, bool noClose,
                               const Text& title, const Text& sub, const Text& bottom, const Text& format,
                               bool firstRowHeader, const Texts& entries, const Texts& buttons, const Images&... images)
{
    if (!list->SetMenuInformation(title, sub, bottom, format, firstRowHeader, entries, buttons, images...))
    {
        LOG_ERROR("Error setting info");
        return false;
    }
    List* shown = list.get();
    if (!m_PresentOrLog(std::move(list), uiId, sourceId, noClose))
    {
        return false;
    }
    shown->SetFocusToList(true);
    return true;
}

bool WindowManager::m_PresentOrLog(std::unique_ptr<BaseDisplay> display, int uiId, unsigned char sourceId, bool noClose)
{
    if (!m_Present(std::move(display), uiId, sourceId, noClose))
    {
        LOG_ERROR("Error presenting popup");
        return false;
    }
    return true;
}

bool WindowManager::m_Present(std::unique_ptr<BaseDisplay> display, const int& uiId, const unsigned char& sourceId,
                              bool noClose)
{
    LOG_DEBUG("uiId = " << uiId << " sourceId =" << static_cast<int>(sourceId));
    if (!display)
    {
        LOG_ERROR("Error popup null");
        return false;
    }

    // The old screen is closed and the timers are set even if the new screen cannot be built. Nothing is shown then.
    // The visible time-out ends the application, but a privileged or no-close screen starts none: it stays until the
    // next request.
    if (m_display)
    {
        m_ClosedByHost();
        m_display.reset();
    }
    m_idleTimer.CancelTimer();
    if (sourceId != PRIVILEGED_SOURCE_ID && !noClose)
    {
        LOG_INFO("Start visible timer");
        m_visibleTimer.StartTimer(VISIBLE_TIMEOUT);
    }

    if (!display->Create())
    {
        LOG_ERROR("Error creating popup");
        return false;
    }
    if (!display->Show())
    {
        LOG_ERROR("Error showing popup");
        return false;
    }
    m_display = std::move(display);
    m_uiId = uiId;
    m_sourceId = sourceId;

    m_ReleaseAllKeys();
    m_LockKeysForSource(sourceId);

    if (m_window != nullptr)
    {
        EFL_GUARD(elm_win_activate, m_window);
        EFL_GUARD(elm_win_iconified_set, m_window, EINA_FALSE);
        EFL_GUARD(evas_object_show, m_window);
    }
    return true;
}

void WindowManager::m_Remove()
{
    LOG_ENTRY();
    m_ReleaseAllKeys();
    if (m_display)
    {
        m_display->Hide();
    }
    if (m_window != nullptr)
    {
        LOG_DEBUG("Hiding the window, giving up the focus & unlocking keys in registered mode (i.e., the navigation "
                  "keys)");
        EFL_GUARD(evas_object_hide, m_window);
    }
    m_sourceId = NO_SOURCE_ID;
    m_uiId = NO_UI_ID;
    if (m_HotelFactoryMode())
    {
        LOG_INFO("App launched from hotel factory menu");
        m_LaunchHotelFactoryMenu();
    }
}

bool WindowManager::Close(int uiId, unsigned char sourceId)
{
    LOG_ENTRY();
    if (uiId != NO_UI_ID && uiId != m_uiId)
    {
        LOG_WARN("reject close command, ui id mismatch (" << m_uiId << " , " << uiId << ")");
        return false;
    }
    if (sourceId >= PRIVILEGED_SOURCE_ID)
    {
        LOG_INFO("close request came from MW, send response back");
        m_SendResponse(CLOSED);
    }
    m_Remove();
    return true;
}

void WindowManager::m_ClosedByHost()
{
    LOG_ENTRY();
    if (m_window != nullptr)
    {
        LOG_DEBUG("Iconifying the window, giving up the focus & unlocking keys in registered mode (i.e., the "
                  "navigation keys)");
        EFL_GUARD(elm_win_iconified_set, m_window, EINA_TRUE);
    }
    if (!m_Answer(CLOSED))
    {
        LOG_INFO(NO_UI << m_ShownIds());
    }
}

void WindowManager::ExitKey()
{
    LOG_ENTRY();
    m_ClosedByHost();
}

void WindowManager::BackKey()
{
    LOG_ENTRY();
    if (!m_Answer(BACK))
    {
        LOG_INFO(NO_UI << m_ShownIds());
    }
}

void WindowManager::KeyPressed()
{
    LOG_ENTRY();
    // Only the source id counts: a key also starts the timer for a screen that was shown without one.
    if (m_sourceId != PRIVILEGED_SOURCE_ID)
    {
        LOG_INFO("Restart visible timer");
        m_visibleTimer.StartTimer(VISIBLE_TIMEOUT);
    }
}

void WindowManager::ButtonPressed(unsigned char button)
{
    LOG_ENTRY();
    if (!m_Answer(ANSWERED, button))
    {
        LOG_INFO(NO_UI << m_ShownIds());
    }
}

void WindowManager::ItemSelected(unsigned char item)
{
    LOG_ENTRY();
    if (!m_Answer(ANSWERED, 0, item))
    {
        LOG_INFO(NO_UI << m_ShownIds());
    }
}

void WindowManager::ItemsSelected(std::string items)
{
    LOG_ENTRY();
    if (!m_Answer(ANSWERED, 0, 0, items))
    {
        LOG_WARN(NO_UI << m_ShownIds());
    }
}

void WindowManager::PinEntered(std::string pin)
{
    LOG_ENTRY();
    if (!m_Answer(ANSWERED, 0, 0, pin))
    {
        LOG_WARN("invalid id - " << m_ShownIds());
    }
    Wipe(pin);
}

void WindowManager::Pause()
{
    LOG_ENTRY();
    m_ClosedByHost();
    m_idleTimer.StartTimer(IDLE_TIMEOUT);
}

void WindowManager::Resume()
{
    LOG_ENTRY();
    if (m_window != nullptr)
    {
        EFL_GUARD(elm_win_activate, m_window);
    }
    if (!m_display)
    {
        return;
    }
    m_LockKeysForSource(m_sourceId);
}

void WindowManager::Exit()
{
    LOG_ENTRY();
    m_ClosedByHost();
}

void WindowManager::Terminate()
{
    LOG_ENTRY();
    m_ClosedByHost();
}

void WindowManager::IdleTimeout()
{
    LOG_INFO("IdleTimeout: " << m_ShownIds());
    LOG_INFO("Idle timeout, exit");
    EFL_GUARD(elm_exit);
}

void WindowManager::VisibleTimeout()
{
    LOG_INFO("VisibleTimeout: " << m_ShownIds());
    LOG_INFO("Visible timeout, exit");
    EFL_GUARD(elm_exit);
}

bool WindowManager::IdleTimeoutExpired()
{
    return m_idleTimer.Expired();
}

bool WindowManager::VisibleTimeoutExpired()
{
    return m_visibleTimer.Expired();
}

bool WindowManager::m_Answer(int kind, unsigned char button, unsigned char item, const std::string& data)
{
    if (m_uiId == NO_UI_ID || m_sourceId == NO_SOURCE_ID)
    {
        return false;
    }
    m_SendResponse(kind, button, item, data);
    m_Remove();
    return true;
}

void WindowManager::m_SendResponse(int kind, unsigned char button, unsigned char item, const std::string& data)
{
    if (m_controller == nullptr)
    {
        LOG_ERROR("no controller to answer to");
        return;
    }
    m_controller->SendResponse(m_uiId, m_sourceId, kind, button, item, data);
}

std::string WindowManager::m_ShownIds() const
{
    return "m_uiId:" + std::to_string(m_uiId) + ", m_sourceId:" + std::to_string(m_sourceId);
}

void WindowManager::m_LockKeysForSource(unsigned char sourceId)
{
    if (sourceId == PRIVILEGED_SOURCE_ID)
    {
        LOG_INFO("Privileged mode");
        m_keySubscriber.LockChannelChangeKeys();
        return;
    }
    LOG_INFO((sourceId == NORMAL_SOURCE_ID ? "Normal mode" : "Dongle MMI"));
    m_keySubscriber.LockNavigationKeys();
}

void WindowManager::m_ReleaseAllKeys()
{
    m_keySubscriber.UnlockNavigationKeys();
    m_keySubscriber.UnlockChannelChangeKeys();
    m_keySubscriber.UnlockExitKey();
    m_keySubscriber.UnlockNumberKeys();
    m_keySubscriber.UnlockPVRKeys();
}

} // namespace VESKAR_APP
