/**
 * From one process of the application to the next: what reached the first one too late is older than all that the bus
 * gives to the next one, and comes first.
 *
 * The bus knows the order of its messages, the two processes do not. So the next one, once it owns the id, asks the one
 * that leaves for what it holds and begins with nothing before the answer; the calls are sent to it alone, ahead of
 * that answer.
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
 * The side of the one that leaves; it is asked while this lives. Of several that leave, only the latest one can hold
 * anything: it has asked those before it. Making and destroying it turn the main loop. Main thread.
 */
class Leaving
{
public:
    /** To send all that is held to the unique name of the next process. */
    using Asked = std::function<void(const std::string& successor)>;

    Leaving(Eldbus_Connection* connection, const BusWatch& bus, const std::string& appId, Asked asked);
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;
    /** On return everybody who has asked has the answer: nobody waits for the rest of this process. */
    ~Leaving();

private:
    static Eldbus_Message* s_OnTakeOver(const Eldbus_Service_Interface* object, const Eldbus_Message* call);

    Asked m_asked;
    BusObject m_object;
    OwnName m_name;
};

/**
 * The side of the next one: asks, waits with the main loop going on, for two seconds at most, and returns the unique
 * name of the process whose calls have all arrived then; empty when none leaves or it does not answer.
 */
std::string TakeOver(Eldbus_Connection* connection, const BusWatch& bus, const std::string& appId);

} // namespace veskar
