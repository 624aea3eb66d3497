/** Grabs the keys that move through the pad, for the lifetime of this object. */
#pragma once

#include <Elementary.h>

namespace veskar
{

/**
 * The pad's window has no keyboard focus and the screen below has registered these keys, so only an exclusive grab
 * brings them here. A key that another client holds exclusively stays with that client. Main thread only; at most one
 * object at a time.
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
