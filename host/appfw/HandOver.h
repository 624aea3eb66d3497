/**
 * The hand-over of calls from a leaving process of the application to the next one. Calls that reached the leaving
 * process too late are older than all calls that the bus gives to the next one, so they must be handled first.
 *
 * When the next process owns the id, it asks the leaving process for the calls that it holds, and handles nothing until
 * the reply. The leaving process sends those calls to the next process only, before the reply.
 */
#pragma once

#include <functional>
#include <string>

#include "Bus.h"
#include "BusWatch.h"
#include "OwnName.h"

namespace veskar
{

/**
 * The leaving process's side. It can be asked while this object exists. If several processes are leaving, only the last
 * one can hold calls, because it has asked those before it. Constructor and destructor run the main loop. Main thread
 * only.
 */
class Leaving
{
public:
    /** Must send all calls that are held to `successor`, the unique name of the next process. */
    using Asked = std::function<void(const std::string& successor)>;

    Leaving(Eldbus_Connection* connection, const BusWatch& bus, const std::string& appId, Asked asked);
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;
    /** Returns when everyone who asked has the reply, so nobody waits for this process any more. */
    ~Leaving();

private:
    static Eldbus_Message* s_OnTakeOver(const Eldbus_Service_Interface* object, const Eldbus_Message* call);

    Asked m_asked;
    BusObject m_object;
    OwnName m_name;
};

/**
 * The next process's side. Asks and runs the main loop until the reply, for two seconds at most. Returns the unique
 * name of the leaving process, whose calls have all arrived then. Empty when no process is leaving or it does not
 * reply.
 */
std::string TakeOver(Eldbus_Connection* connection, const BusWatch& bus, const std::string& appId);

} // namespace veskar
