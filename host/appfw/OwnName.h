/** A name of the application on the bus: the owner of its id is the running instance. */
#pragma once

#include <optional>
#include <string>

#include "Bus.h"
#include "BusWatch.h"

namespace veskar
{

/** Both operations wait for the bus daemon with the main loop going on, until the bus is gone. */
class OwnName
{
public:
    OwnName(Eldbus_Connection* connection, const BusWatch& bus, std::string name)
        : m_connection(connection), m_bus(bus), m_name(std::move(name))
    {
    }

    /** False when another process owns it, or the bus refuses. */
    bool Request();

    /** The same, but an owner that has requested it in this way too gives it up. */
    bool RequestFromAny();

    /**
     * On return every call that the daemon has sent to this process has been dispatched; the next one goes to, and
     * starts, the next process.
     */
    void Release();

private:
    /** 0 for an error. */
    using Answer = std::optional<unsigned int>;

    bool m_Request(unsigned int flags);
    static void s_OnAnswer(void* data, const Eldbus_Message* reply, Eldbus_Pending* pending);
    unsigned int m_Await(Answer& answer, Eldbus_Pending* sent) const;

    Eldbus_Connection* m_connection;
    const BusWatch& m_bus;
    std::string m_name;
};

} // namespace veskar
