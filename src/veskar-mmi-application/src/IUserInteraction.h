#pragma once

#include <string>

namespace VESKAR_APP
{

/** What a display tells of the viewer's actions. All operations run on the main loop and return at once. */
class IUserInteraction
{
public:
    virtual void ExitKey() = 0;
    virtual void BackKey() = 0;

    /** Any other key: the viewer is there. */
    virtual void KeyPressed() = 0;

    /** `button` counts from 1. */
    virtual void ButtonPressed(unsigned char button) = 0;

    /** `item` is the toolkit's index of the row in its list. */
    virtual void ItemSelected(unsigned char item) = 0;

    /** The indexes of the marked rows as one string of digits in ascending order. */
    virtual void ItemsSelected(std::string items) = 0;

    virtual void PinEntered(std::string pin) = 0;

    virtual ~IUserInteraction() = default;
};

} // namespace VESKAR_APP
