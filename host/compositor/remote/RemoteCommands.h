/**
 * What the remote control's socket understands:
 *
 *     press KEY…   each key down and up        keys    every key's platform name
 *     down KEY     press it                    grabs   for each grab: key, mode, process id/program
 *     up KEY       release it                  screens for each screen that is drawn: its id, process id/program
 *     offer KEY    down and up; answered when it is known who took it: "taken", "held back" or "nobody"
 *     taken        the keys that clients took since the last time; answered as soon as there is one. For each: the
 *                  press in nanoseconds of CLOCK_MONOTONIC, the key, process id/program
 *     backdrop evening|snow|PATH  the programme behind the windows; answered when it is on the screen
 *     moments      when windows changed, frames were drawn and keys were pressed (see Moments.h)
 *     shot PATH    the screen as a PNG; answered when the file is complete
 */
#pragma once

#include "RemoteSocket.h"
#include "keys/GrabTable.h"
#include "keys/KeyRouter.h"
#include "keys/Routing.h"
#include "picture/Backdrop.h"
#include "picture/Moments.h"
#include "picture/Screenshot.h"
#include "seat/Seat.h"

namespace veskar
{

struct RemoteParts
{
    Seat& seat;
    const GrabTable& grabs;
    const Routing& routing;
    TakenKeys& taken;
    Screenshots& screenshots;
    Moments& moments;
    Backdrop& backdrop;
    KeyRouter* router; // null on a TV without one
};

/** All parts must outlive the socket. */
void SetRemoteCommands(RemoteSocket& socket, const RemoteParts& parts);

} // namespace veskar
