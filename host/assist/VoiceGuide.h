/** The voice guide: reads out each screen, and then each element that the viewer moves to. */
#pragma once

#include "Focused.h"

#include <string>

namespace veskar
{

/** Silent while the setting is off. Main loop only. */
class VoiceGuide
{
public:
    /** Never destroyed: it is needed for as long as the toolkit runs. */
    static VoiceGuide& TheOne();

    VoiceGuide(const VoiceGuide&) = delete;
    VoiceGuide& operator=(const VoiceGuide&) = delete;

    /** Speaks a screen's text immediately (see SpokenText.h), then the element that has the focus. */
    void SpeakScreen(const char* markup);

    /** Speaks what has changed on the screen immediately: a page, a value. */
    void SpeakNews(const std::string& sentence);

    /**
     * Starts to speak each button and row that gets the focus in the program's window, and each tick of a row. May be
     * called more than once.
     */
    void FollowFocus();

private:
    VoiceGuide() = default;
    ~VoiceGuide() = default;
    static void s_OnWindowGone(void* data, Evas* canvas, Evas_Object* window, void* event);
    static Eina_Bool s_OnKey(void* data, int type, void* event);
    static Eina_Bool s_OnIdle(void* data);
    void m_LookAtFocus();

    Evas_Object* m_window = nullptr; // null after it is deleted, because s_OnIdle still runs then
    Focused m_spoken;
    bool m_viewerMoved = false;
    bool m_follows = false; // the handlers of keys and idle turns are registered; they stay when the window is deleted
};

} // namespace veskar
