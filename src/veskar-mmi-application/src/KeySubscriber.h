#pragma once

#include <vector>

#include <Elementary.h>

struct wl_display;
struct wl_surface;

namespace VESKAR_APP
{

/**
 * Grabs groups of the remote control's keys for one window, through the compositor's key router.
 *
 * Lock grabs a group and Unlock releases it; either may be repeated. A failure is only a warning in the log, and the
 * keys are not grabbed then. Main thread.
 */
class KeySubscriber
{
public:
    /** The window stays the caller's and must have its Wayland surface. */
    explicit KeySubscriber(Evas_Object* window);
    ~KeySubscriber();

    KeySubscriber(const KeySubscriber&) = delete;
    KeySubscriber& operator=(const KeySubscriber&) = delete;

    /** Connects to the key router. */
    void RegisterKeys();

    void LockNumberKeys();
    void UnlockNumberKeys();
    void LockExitKey();
    void UnlockExitKey();
    void LockChannelChangeKeys();
    void UnlockChannelChangeKeys();
    void LockNavigationKeys();
    void UnlockNavigationKeys();
    void LockPVRKeys();
    void UnlockPVRKeys();

private:
    void m_GrabKey(const char* key);
    void m_UngrabKey(const char* key);

    Evas_Object* m_window;
    std::vector<const char*> m_numberKeys;
    std::vector<const char*> m_channelChangeKeys;
    std::vector<const char*> m_pvrKeys;
    wl_display* m_wlDisplay;
    wl_surface* m_surface;
};

} // namespace VESKAR_APP
