/** Owners of the bus library's handles. Main thread only, like the library itself. */
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
 * The bus library is usable while an object of this class exists. The main loop's library is initialised first: it uses
 * the bus library for that, and must not do so in the middle of the bus library's own initialisation.
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

/** The last owner writes out what is still queued. */
using BusConnection = std::unique_ptr<Eldbus_Connection, FreeWith<eldbus_connection_unref>>;
using BusMessage = std::unique_ptr<Eldbus_Message, FreeWith<eldbus_message_unref>>;
/** One interface of an object, which may have others. */
using BusObject = std::unique_ptr<Eldbus_Service_Interface, FreeWith<eldbus_service_interface_unregister>>;

/** A method call without its arguments. */
inline BusMessage NewCall(const std::string& busName, const std::string& path, const std::string& interface,
                          const std::string& method)
{
    return BusMessage(eldbus_message_method_call_new(busName.c_str(), path.c_str(), interface.c_str(), method.c_str()));
}

/** Valid as long as the message that it was read from. */
struct BusError
{
    const char* name;
    const char* text;
};

/** The error that came instead of a reply, or nothing for a reply. */
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
