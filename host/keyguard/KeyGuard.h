/**
 * Holds back keys that the viewer cannot have meant for the screen that would get them.
 *
 *  - Return, Back and Exit that are pressed before the screen's first frame was drawn, or too soon after it to have
 *    been meant for what it shows;
 *  - digits that are pressed before the first frame;
 *  - the repeats of a key that has been held since before the screen, or whose press was held back;
 *  - every key while there is no screen.
 */
#pragma once

#include <chrono>
#include <map>
#include <string_view>

namespace veskar
{

class KeyGuard
{
public:
    /** Since any moment, which stays the same. */
    using Time = std::chrono::milliseconds;

    struct Press
    {
        std::string_view key; // its platform name
        unsigned code;
        unsigned stamp; // the repeats of a press have its stamp
    };

    /** Before this, everything passes: the program has no screens, or none that is known here. */
    void ExpectScreens();

    /** A screen is shown, in place of the one before it if there is one. It cannot be seen yet. */
    void ScreenComes();
    /** Its first frame has reached the display. */
    void ScreenIsDrawn(Time now);
    void ScreenGoes();

    /**
     * Whether the program gets a press or a repeat. `delay` is the time after the first frame in which Return, Back and
     * Exit are held back; 0 lets every press pass while there is a screen.
     */
    bool Lets(const Press& press, Time now, Time delay);

    /** Whether the program gets the release of that key: it does if it got the press. */
    bool LetsRelease(unsigned code);

private:
    enum class Screen
    {
        NotExpected,
        None,
        Coming,
        Drawn
    };

    struct Held
    {
        unsigned stamp;
        bool wasHeard;
        bool repeats;
    };

    bool m_IsMeant(std::string_view key, Time now, Time delay) const;
    void m_EndRepeats();

    Screen m_screen = Screen::NotExpected;
    Time m_drawn{};
    std::map<unsigned, Held> m_held; // by the key's code
};

} // namespace veskar
