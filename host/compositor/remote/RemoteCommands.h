/**
 * What the remote control's socket understands:
 *
 *     press KEY…   each key down and up        keys    every key's platform name
 *     down KEY     press it                    grabs   for each grab: key, mode, process id/program
 *     up KEY       release it                  shot PATH   the screen as a PNG; answered when the file is complete
 */
#pragma once

#include "RemoteSocket.h"
#include "keys/GrabTable.h"
#include "picture/Screenshot.h"
#include "seat/Seat.h"

namespace veskar
{

/** All arguments must outlive the socket. */
void SetRemoteCommands(RemoteSocket& socket, Seat& seat, const GrabTable& grabs, Screenshots& screenshots);

} // namespace veskar
