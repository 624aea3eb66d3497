/** Owners of the bus library's handles. Main thread only, as the library itself. */
#pragma once

#include <memory>
#include <optional>
#include <string>

#include <Ecore.h>
#include <Eldbus.h>

#include "FreeWith.h"

namespace veskar
{

/**
 * The library is usable while one of these lives. The main loop's library comes first: it uses the bus itself while it
 * initialises, and would do so in the middle of the bus library's own initialisation.
 */
class BusLibrary
{
public:
    BusLibrary() : m_loop(ecore_init() > 0), m_bus(m_loop && eldbus_init() > 0) {}
    BusLibrary(const BusLibrary&) = delete;
    BusLibrary& operator=(const BusLibrary&) = delete;
    ~BusLibrary()
    {
        if (m_bus)
        {
            eldbus_shutdown();
        }
        if (m_loop)
        {
            ecore_shutdown();
        }
    }
    explicit operator bool() const { return m_bus; }

private:
    bool m_loop;
    bool m_bus;
};

/** When the last owner goes, what is still queued is written out first. */
using BusConnection = std::unique_ptr<Eldbus_Connection, FreeWith<eldbus_connection_unref>>;
using BusMessage = std::unique_ptr<Eldbus_Message, FreeWith<eldbus_message_unref>>;
using BusObject = std::unique_ptr<Eldbus_Service_Interface, FreeWith<eldbus_service_object_unregister>>;

/** A method call without its arguments. */
inline BusMessage NewCall(const std::string& busName, const std::string& path, const std::string& interface,
                          const std::string& method)
{
    return BusMessage(eldbus_message_method_call_new(busName.c_str(), path.c_str(), interface.c_str(), method.c_str()));
}

/** Both live as long as the message that they were read from. */
struct BusError
{
    const char* name;
    const char* text;
};

/** The error that came in place of a reply, or nothing where it is a reply. */
inline std::optional<BusError> ErrorOf(const Eldbus_Message* reply)
{
    BusError error{};
    return eldbus_message_error_get(reply, &error.name, &error.text) ? std::optional(error) : std::nullopt;
}

/** One more owner of a message that the library lends to a callback. */
inline BusMessage ShareMessage(const Eldbus_Message* message)
{
    return BusMessage(eldbus_message_ref(const_cast<Eldbus_Message*>(message)));
}

} // namespace veskar
