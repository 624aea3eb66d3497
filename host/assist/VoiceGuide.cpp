#include "VoiceGuide.h"

#include "CString.h"
#include "Log.h"
#include "Mode.h"
#include "OwnScreen.h"
#include "SettingKeys.h"
#include "Speech.h"
#include "SpokenText.h"
#include "appfw/Window.h"
#include "vconf.h"
#include "voice_guide.h"

#include <cstdlib>
#include <fstream>
#include <initializer_list>

namespace veskar
{
namespace
{

std::string Language()
{
    const CString language(vconf_get_str(LANGUAGE_KEY));
    return language ? language.get() : "";
}

/** Appends each sentence as a line to the file that the environment names, so that tests can read what was spoken. */
void Record(const std::string& sentence)
{
    const char* path = std::getenv("VESKAR_VOICE_FILE");
    if (!path || !*path)
    {
        return;
    }
    std::ofstream file(path, std::ios::app);
    file << sentence << '\n';
    if (!file.flush())
    {
        ASSIST_WARN("cannot write what is spoken to %s", path);
    }
}

/** Those that are not empty, with commas between. */
std::string Listed(std::initializer_list<std::string> parts)
{
    std::string listed;
    for (const std::string& part : parts)
    {
        listed += listed.empty() || part.empty() ? part : ", " + part;
    }
    return listed;
}

void Speak(const std::string& text, Turn turn)
{
    if (!IsOn(VOICE_GUIDE_KEY))
    {
        return;
    }
    const std::string sentence = SpokenText(text);
    ASSIST_INFO("Speaking: %s", sentence.c_str());
    Record(sentence);
    Say(sentence, Language(), turn);
}

} // namespace

VoiceGuide& VoiceGuide::TheOne()
{
    static auto* const guide = new VoiceGuide;
    return *guide;
}

void VoiceGuide::SpeakScreen(const char* text)
{
    m_spoken = {};
    m_viewerMoved = false;
    OwnScreen::Instance().NoteText(SpokenText(text));
    Speak(text, Turn::AtOnce);
}

void VoiceGuide::SpeakNews(const std::string& sentence)
{
    Speak(sentence, Turn::AtOnce);
}

void VoiceGuide::FollowFocus()
{
    if (m_window)
    {
        return;
    }
    m_window = FirstWindow();
    if (!m_window)
    {
        return;
    }
    evas_object_event_callback_add(m_window, EVAS_CALLBACK_DEL, s_OnWindowGone, this);
    if (!m_follows)
    {
        ecore_event_handler_add(ECORE_EVENT_KEY_DOWN, s_OnKey, this);
        ecore_idle_enterer_add(s_OnIdle, this);
        m_follows = true;
    }
}

void VoiceGuide::s_OnWindowGone(void* data, Evas*, Evas_Object*, void*)
{
    static_cast<VoiceGuide*>(data)->m_window = nullptr;
}

Eina_Bool VoiceGuide::s_OnKey(void* data, int, void*)
{
    static_cast<VoiceGuide*>(data)->m_viewerMoved = true;
    return ECORE_CALLBACK_PASS_ON;
}

/**
 * Checks the focus when the main loop becomes idle, instead of listening to the widgets: while a screen opens or a list
 * moves, the focus passes over elements on which it does not stay.
 */
Eina_Bool VoiceGuide::s_OnIdle(void* data)
{
    static_cast<VoiceGuide*>(data)->m_LookAtFocus();
    return ECORE_CALLBACK_RENEW;
}

void VoiceGuide::m_LookAtFocus()
{
    if (!m_window)
    {
        return;
    }
    const Focused focused = FindFocused(m_window);
    const bool sameElement = focused.SameElement(m_spoken);
    if (!focused.object || (sameElement && focused.ticked == m_spoken.ticked))
    {
        return;
    }
    const std::string text = TextOf(focused);
    if (text.empty())
    {
        return;
    }
    m_spoken = focused;
    const std::string tick = TickOf(focused);
    const std::string sentence = sameElement ? tick : Listed({text, tick, PlaceOf(focused)});
    // Before the viewer has pressed a key, the focused element waits until the screen has been read out.
    Speak(sentence, m_viewerMoved ? Turn::AtOnce : Turn::Next);
}

} // namespace veskar

void elm_access_force_say(const char* text)
{
    if (text)
    {
        veskar::VoiceGuide::TheOne().SpeakScreen(text);
    }
}
