/** The keys that clients took, from the remote control or a keyboard, for whoever records them. */
#pragma once

#include "KeyTable.h"

#include <cstdint>
#include <functional>
#include <map>
#include <vector>

#include <sys/types.h>

namespace veskar
{

struct TakenKey
{
    int64_t pressed; // nanoseconds of CLOCK_MONOTONIC: a client may answer a screen before it says that it took the key
    const Key* key;
    pid_t client;
};

/** Keeps nothing before the first Await, and 1000 keys at most. */
class TakenKeys
{
public:
    using Told = std::function<void(const std::vector<TakenKey>&)>;

    /** Calls `told` once, with what was taken since the last call: now, or as soon as a key is. */
    void Await(Told told);

    void Pressed(const Key& key);
    void Taken(uint32_t code, pid_t client);

private:
    bool m_wanted = false;
    std::map<const Key*, int64_t> m_pressed;
    std::vector<TakenKey> m_taken;
    Told m_told;
};

} // namespace veskar
