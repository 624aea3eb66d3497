#include "OwnScreen.h"

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

void OwnScreen::Comes()
{
    ++m_screen;
    m_keys.ScreenComes();
    m_Set(false, m_requested);
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
        m_Set(true, m_uiId);
    }
}

void OwnScreen::Goes()
{
    ++m_screen;
    m_keys.ScreenGoes();
    m_Set(false, 0);
}

void OwnScreen::SetDisplay(Display* display)
{
    m_display = display;
    m_Set(m_shown, m_uiId);
}

void OwnScreen::m_Set(bool shown, int uiId)
{
    m_shown = shown;
    m_uiId = uiId;
    if (m_display != nullptr)
    {
        m_display->Changed(shown, uiId);
    }
}

} // namespace veskar
