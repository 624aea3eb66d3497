/** The viewer's voice guide: reads out each screen, and then what the viewer moves to. */
#pragma once

#include "Focused.h"

#include <string>

namespace veskar
{

/** Silent while the setting is off. Main loop only. */
class VoiceGuide
{
public:
    /** Never destroyed: screens are spoken as long as the toolkit runs, which has no moment of its own to end it. */
    static VoiceGuide& TheOne();

    VoiceGuide(const VoiceGuide&) = delete;
    VoiceGuide& operator=(const VoiceGuide&) = delete;

    /** Speaks a screen's sentence, given as markup, at once. The element that then has the focus is spoken after it. */
    void SpeakScreen(const char* markup);

    /**
     * From now on speaks each button and row that gets the focus in the program's window, and each tick of a row. May
     * be called again.
     */
    void FollowFocus();

private:
    VoiceGuide() = default;
    ~VoiceGuide() = default;
    static void s_OnWindowGone(void* data, Evas* canvas, Evas_Object* window, void* event);
    static Eina_Bool s_OnKey(void* data, int type, void* event);
    static Eina_Bool s_OnIdle(void* data);
    void m_LookAtFocus();

    Evas_Object* m_window = nullptr; // null once it is deleted: the toolkit still idles after it
    Focused m_spoken;
    bool m_viewerMoved = false;
    bool m_follows = false; // the keys and the main loop, which outlive any window
};

} // namespace veskar
