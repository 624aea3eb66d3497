/** A name of the application on the bus. The owner of the application's id is the running instance. */
#pragma once

#include <optional>
#include <string>

#include "Bus.h"
#include "BusWatch.h"

namespace veskar
{

/** All operations run the main loop until the bus daemon has replied or the bus is gone. */
class OwnName
{
public:
    OwnName(Eldbus_Connection* connection, const BusWatch& bus, std::string name)
        : m_connection(connection), m_bus(bus), m_name(std::move(name))
    {
    }

    /** Returns false when another process owns the name or the bus refuses. */
    bool Request();

    /** The same, but takes the name from an owner that has also requested it with this function. */
    bool RequestFromAny();

    /**
     * Returns when every call that the daemon has sent to this process has been dispatched. The next call starts the
     * next process.
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
