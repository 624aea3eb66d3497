#include "IVesKarController.h"

#include <dbus/dbus.h>
#include <dlog.h>

#include <Eldbus.h>

#include <cstring>
#include <memory>

namespace
{
constexpr auto s_tag = "VESKAR-CONTROLLER";
constexpr auto s_busName = "org.tizen.veskar-middleware";
constexpr auto s_path = "/org/tizen/veskar_middleware";
constexpr auto s_interface = "org.tizen.VesKarController1";
constexpr double s_defaultTimeout = -1;

struct ConnectionUnref
{
    void operator()(Eldbus_Connection* connection) const { eldbus_connection_unref(connection); }
};
using Connection = std::unique_ptr<Eldbus_Connection, ConnectionUnref>;

struct MessageUnref
{
    void operator()(Eldbus_Message* message) const { eldbus_message_unref(message); }
};
using Message = std::unique_ptr<Eldbus_Message, MessageUnref>;

/**
 * The process's one session connection, which the application framework opens first and closes last. It is taken anew
 * for each message: a reference kept here would outlive the framework's and hold the connection open past the end.
 */
Connection SessionConnection()
{
    return Connection{eldbus_connection_get(ELDBUS_CONNECTION_TYPE_SESSION)};
}

void OnReply(void*, const Eldbus_Message* reply, Eldbus_Pending* pending)
{
    const char* name = nullptr;
    const char* text = nullptr;
    if (!eldbus_message_error_get(reply, &name, &text))
    {
        return;
    }
    if (std::string{name} == ELDBUS_ERROR_PENDING_CANCELED)
    {
        return; // The process ends; the message itself has left.
    }
    __dlog_print(LOG_ID_MAIN, DLOG_ERROR, s_tag, "The middleware did not take %s: %s (%s)",
                 eldbus_pending_method_get(pending), text, name);
}

/** Queues the call and, where the socket takes it, writes it at once. The reply is only looked at for an error. */
template <typename... Args>
bool Call(const char* method, const char* signature, Args... args)
{
    const Connection connection = SessionConnection();
    if (connection == nullptr)
    {
        __dlog_print(LOG_ID_MAIN, DLOG_ERROR, s_tag, "No bus for %s", method);
        return false;
    }
    Message message{eldbus_message_method_call_new(s_busName, s_path, s_interface, method)};
    if (message == nullptr || !eldbus_message_arguments_append(message.get(), signature, args...))
    {
        __dlog_print(LOG_ID_MAIN, DLOG_ERROR, s_tag, "Out of memory for %s", method);
        return false;
    }
    return eldbus_connection_send(connection.get(), message.release(), OnReply, nullptr, s_defaultTimeout) != nullptr;
}

/** Whoever sends the bus a string that is not UTF-8 loses its connection, so such a text must not get there. */
bool IsBusText(const std::string& text)
{
    return text.find('\0') == std::string::npos && dbus_validate_utf8(text.c_str(), nullptr);
}

class BusController final : public VESKAR_API::IVesKarController
{
public:
    virtual ~BusController() = default;

    void Reserved1() override {}
    void Reserved2() override {}
    void Reserved3() override {}
    void Reserved4() override {}

    bool OpenMenuPosition(int menuPosition) override { return Call("OpenMenuPosition", "i", menuPosition); }

    bool SendResponse(int uiId, unsigned char sourceId, int kind, unsigned char button, unsigned char item,
                      std::string data) override
    {
        if (!IsBusText(data))
        {
            __dlog_print(LOG_ID_MAIN, DLOG_ERROR, s_tag,
                         "The answer of ui %d, source %d is dropped: its %zu bytes are no text that the bus carries",
                         uiId, sourceId, data.size());
            return false;
        }
        const bool sent = Call("SendResponse", "iyiyys", uiId, sourceId, kind, button, item, data.c_str());
        // It may be a PIN, and this copy is ours.
        explicit_bzero(data.data(), data.size());
        return sent;
    }
};
} // namespace

namespace VESKAR_API
{
IVesKarController* IVesKarController::Instance()
{
    if (SessionConnection() == nullptr)
    {
        return nullptr;
    }
    static BusController s_controller;
    return &s_controller;
}
} // namespace VESKAR_API
