#include "KeyGuard.h"

namespace veskar
{

namespace
{

bool Decides(std::string_view key)
{
    return key == "Return" || key == "XF86Back" || key == "XF86Exit";
}

bool IsDigit(std::string_view key)
{
    return key.size() == 1 && key.front() >= '0' && key.front() <= '9';
}

} // namespace

void KeyGuard::ExpectScreens()
{
    m_screen = Screen::None;
}

void KeyGuard::ScreenComes()
{
    m_screen = Screen::Coming;
    m_EndRepeats();
}

void KeyGuard::ScreenIsDrawn(Time now)
{
    m_screen = Screen::Drawn;
    m_drawn = now;
}

void KeyGuard::ScreenGoes()
{
    m_screen = Screen::None;
    m_EndRepeats();
}

bool KeyGuard::Lets(const Press& press, Time now, Time delay)
{
    const auto known = m_held.find(press.code);
    // The release of a key is lost when the window leaves the screen meanwhile, so a key that is down may be pressed.
    if (known != m_held.end() && known->second.stamp == press.stamp)
    {
        return known->second.repeats;
    }
    const bool meant = m_IsMeant(press.key, now, delay);
    m_held[press.code] = {press.stamp, meant, meant};
    return meant;
}

bool KeyGuard::LetsRelease(unsigned code)
{
    const auto held = m_held.find(code);
    if (held == m_held.end())
    {
        return true;
    }
    const bool wasHeard = held->second.wasHeard;
    m_held.erase(held);
    return wasHeard;
}

bool KeyGuard::m_IsMeant(std::string_view key, Time now, Time delay) const
{
    if (m_screen == Screen::NotExpected || m_screen == Screen::None)
    {
        return m_screen == Screen::NotExpected;
    }
    if (delay == Time::zero())
    {
        return true;
    }
    if (Decides(key))
    {
        return m_screen == Screen::Drawn && now - m_drawn >= delay;
    }
    return m_screen == Screen::Drawn || !IsDigit(key);
}

void KeyGuard::m_EndRepeats()
{
    for (auto& [code, held] : m_held)
    {
        held.repeats = false;
    }
}

} // namespace veskar
