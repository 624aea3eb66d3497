/** The application's name on the bus: who owns it is the running instance. */
#pragma once

#include <string>

#include "Bus.h"

namespace veskar
{

/** Both operations wait for the bus daemon with the main loop going on; a call of the bus always ends. */
class OwnName
{
public:
    OwnName(Eldbus_Connection* connection, std::string name) : m_connection(connection), m_name(std::move(name)) {}

    /** False when another process owns it, or the bus refuses. */
    bool Request();

    /**
     * On return every call that the daemon has sent to this process has been dispatched; the next one goes to, and
     * starts, the next process.
     */
    void Release();

private:
    Eldbus_Connection* m_connection;
    std::string m_name;
};

} // namespace veskar
