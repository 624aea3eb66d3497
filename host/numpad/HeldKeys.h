/** The keys that the pad is moved with, held for its window for as long as this object lives. */
#pragma once

#include <Elementary.h>

namespace veskar
{

/**
 * The pad's window has no keyboard focus, and the screen below has these keys registered: holding them exclusively is
 * what brings them here. A key that someone else holds exclusively stays there. Main thread; one at a time.
 */
class HeldKeys
{
public:
    explicit HeldKeys(Evas_Object* window);
    ~HeldKeys();

    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;
};

} // namespace veskar
