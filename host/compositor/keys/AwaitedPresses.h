/** Presses of the remote control whose sender wants to know whether somebody took them. */
#pragma once

#include "KeyTable.h"
#include "weston/Weston.h"

#include <functional>
#include <list>

namespace veskar
{

enum class Reception
{
    Nobody,   // no client got it
    HeldBack, // a client got it and held it back from itself
    Taken
};

class AwaitedPresses
{
public:
    using Told = std::function<void(Reception)>;

    /** Calls `told` once: when the client has said what became of the key, or has gone. */
    void Await(wl_client* client, const Key& key, Told told);

    void Heard(wl_client* client, uint32_t code, bool taken);
    void ClientGone(wl_client* client);

private:
    struct Awaited
    {
        wl_client* client;
        uint32_t code;
        Told told;
    };

    std::list<Awaited> m_awaited; // clients answer in the order of the presses
};

} // namespace veskar
