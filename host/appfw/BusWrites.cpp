/**
 * A message that the socket does not take in one go.
 *
 * The toolkit's bus library does not wait for a socket to take the rest: a large message stays half sent until another
 * one is sent. So the watch for writing is handled here, on a descriptor of its own, because the main loop waits for
 * each descriptor once. A program's definition of the function that sets the watches comes before the library's.
 */
#include <dlfcn.h>
#include <fcntl.h>

#include <Ecore.h>
#include <dbus/dbus.h>

#include "FileDescriptor.h"

namespace veskar
{
namespace
{

/** What the toolkit's bus library does with a connection's watches. */
struct LibraryFunctions
{
    DBusAddWatchFunction add;
    DBusRemoveWatchFunction remove;
    DBusWatchToggledFunction toggled;
    void* data;
    DBusFreeFunction freeData;
};

/** Handles one watch for writing, while the bus library has something left to send. */
class Writer
{
public:
    explicit Writer(DBusWatch* watch)
        : m_watch(watch), m_socket(fcntl(dbus_watch_get_unix_fd(watch), F_DUPFD_CLOEXEC, 0))
    {
        Toggle();
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() { m_Ignore(); }

    void Toggle()
    {
        m_Ignore();
        if (dbus_watch_get_enabled(m_watch) != 0)
        {
            m_handler = ecore_main_fd_handler_add(m_socket.Get(), ECORE_FD_WRITE, s_OnWritable, this, nullptr, nullptr);
        }
    }

private:
    static Eina_Bool s_OnWritable(void* self, Ecore_Fd_Handler*)
    {
        dbus_watch_handle(static_cast<Writer*>(self)->m_watch, DBUS_WATCH_WRITABLE);
        return ECORE_CALLBACK_RENEW;
    }

    void m_Ignore()
    {
        if (m_handler != nullptr)
        {
            ecore_main_fd_handler_del(m_handler);
            m_handler = nullptr;
        }
    }

    DBusWatch* m_watch;
    FileDescriptor m_socket;
    Ecore_Fd_Handler* m_handler = nullptr;
};

bool IsForWriting(DBusWatch* watch)
{
    return (dbus_watch_get_flags(watch) & DBUS_WATCH_WRITABLE) != 0;
}

dbus_bool_t Add(DBusWatch* watch, void* library)
{
    if (!IsForWriting(watch))
    {
        const auto* functions = static_cast<LibraryFunctions*>(library);
        return functions->add(watch, functions->data);
    }
    dbus_watch_set_data(watch, new Writer(watch), [](void* writer) { delete static_cast<Writer*>(writer); });
    return 1;
}

void Remove(DBusWatch* watch, void* library)
{
    if (IsForWriting(watch))
    {
        dbus_watch_set_data(watch, nullptr, nullptr);
        return;
    }
    const auto* functions = static_cast<LibraryFunctions*>(library);
    functions->remove(watch, functions->data);
}

void Toggled(DBusWatch* watch, void* library)
{
    if (IsForWriting(watch))
    {
        static_cast<Writer*>(dbus_watch_get_data(watch))->Toggle();
        return;
    }
    const auto* functions = static_cast<LibraryFunctions*>(library);
    functions->toggled(watch, functions->data);
}

void Free(void* library)
{
    auto* functions = static_cast<LibraryFunctions*>(library);
    if (functions->freeData != nullptr)
    {
        functions->freeData(functions->data);
    }
    delete functions;
}

} // namespace
} // namespace veskar

extern "C" dbus_bool_t dbus_connection_set_watch_functions(DBusConnection* connection, DBusAddWatchFunction add,
                                                           DBusRemoveWatchFunction remove,
                                                           DBusWatchToggledFunction toggled, void* data,
                                                           DBusFreeFunction freeData)
{
    using namespace veskar;
    static const auto ofTheLibrary = reinterpret_cast<decltype(&dbus_connection_set_watch_functions)>(
        dlsym(RTLD_NEXT, "dbus_connection_set_watch_functions"));
    if (add == nullptr)
    {
        return ofTheLibrary(connection, add, remove, toggled, data, freeData);
    }
    auto* functions = new LibraryFunctions{add, remove, toggled, data, freeData};
    return ofTheLibrary(connection, Add, Remove, Toggled, functions, Free);
}
