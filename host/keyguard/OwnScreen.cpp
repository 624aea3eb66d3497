#include "OwnScreen.h"

#include <utility>

namespace veskar
{

OwnScreen& OwnScreen::Instance()
{
    static auto* one = new OwnScreen;
    return *one;
}

KeyGuard::Time OwnScreen::Now()
{
    return std::chrono::duration_cast<KeyGuard::Time>(std::chrono::steady_clock::now().time_since_epoch());
}

void OwnScreen::NoteRequest(Request request)
{
    m_requested = std::move(request);
    if (m_requested.uiId == m_current.uiId && m_requested.sourceId == m_current.sourceId)
    {
        m_current = m_requested;
    }
}

void OwnScreen::Comes()
{
    ++m_screen;
    m_keys.ScreenComes();
    m_Set(false);
    m_current = m_requested;
}

void OwnScreen::IsDrawn()
{
    if (m_display == nullptr)
    {
        m_Reached(m_screen);
        return;
    }
    m_display->AwaitFrame([this, screen = m_screen] { m_Reached(screen); });
}

void OwnScreen::m_Reached(int screen)
{
    if (screen == m_screen)
    {
        m_keys.ScreenIsDrawn(Now());
        m_Set(true);
    }
}

void OwnScreen::Goes()
{
    ++m_screen;
    m_keys.ScreenGoes();
    m_Set(false);
    m_current = {};
}

std::set<std::string> OwnScreen::HeldKeys() const
{
    return m_display != nullptr ? m_display->HeldKeys() : std::set<std::string>();
}

void OwnScreen::SetDisplay(Display* display)
{
    m_display = display;
    m_TellDisplay();
}

void OwnScreen::m_Set(bool shown)
{
    const bool changed = std::exchange(m_shown, shown) != shown;
    m_TellDisplay();
    if (changed && m_audience != nullptr)
    {
        shown ? m_audience->Shown(m_current) : m_audience->Closed(m_current);
    }
}

void OwnScreen::m_TellDisplay()
{
    if (m_display != nullptr)
    {
        m_display->Changed(m_shown, m_shown ? m_current.uiId : 0);
    }
}

} // namespace veskar
