/**
 * Number keys that a window had for itself until a moment ago. A viewer who types one digit more than a PIN has, or
 * whose PIN screen is closed while he types, does not mean to change the channel: for a short time they reach no other
 * window, unless that has them for itself.
 */
#pragma once

#include "KeyTable.h"

#include <chrono>
#include <map>

namespace veskar
{

class LateDigits
{
public:
    /** Since any moment, which stays the same. */
    using Time = std::chrono::milliseconds;

    static Time Now() { return std::chrono::duration_cast<Time>(std::chrono::steady_clock::now().time_since_epoch()); }

    /** Longer than the pause between two digits that are typed in one go. */
    static constexpr Time HELD{500};

    /** Other keys than digits may be given too. */
    void Released(const Key& key, Time now);

    bool Holds(const Key& key, Time now) const;

private:
    std::map<const Key*, Time> m_released;
};

} // namespace veskar
