#pragma once

#include <string>

namespace VESKAR_APP
{

/** The viewer's actions, from the display. Each one but KeyPressed() ends the screen. Main thread; none blocks. */
class IUserInteraction
{
public:
    virtual void ExitKey() = 0;
    virtual void BackKey() = 0;

    /** Any other key: the viewer is still there. */
    virtual void KeyPressed() = 0;

    /** `button` counts from 1. */
    virtual void ButtonPressed(unsigned char button) = 0;

    /** `item` is the toolkit's index of the row, which counts from 1. */
    virtual void ItemSelected(unsigned char item) = 0;

    /** All digits of the selected rows' indexes as one string, in ascending order. */
    virtual void ItemsSelected(std::string items) = 0;

    virtual void PinEntered(std::string pin) = 0;

    virtual ~IUserInteraction() = default;
};

} // namespace VESKAR_APP
