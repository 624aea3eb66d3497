// A request, from the message on the bus to the call of the window manager. The input is the request's values: the kind
// of each (s text, r repeated text, a array, or any other type), its key and what belongs to the kind. Needs a bus.

#include "AppControlCodec.h"
#include "ApplicationObject.h"
#include "BusName.h"
#include "IWindowManager.h"
#include "Input.h"
#include "MainLoop.h"
#include "ServiceProcessor.h"
#include "TvBus.h"

#include <IVesKarController.h>
#include <app_context_manager.h>

using namespace veskar;

int app_context_manager_request_task(const char* /*task*/, const char* /*action*/)
{
    return 0;
}

VESKAR_API::IVesKarController* VESKAR_API::IVesKarController::Instance()
{
    return nullptr;
}

namespace
{

struct CountingScreens : VESKAR_APP::IWindowManager
{
    using T = const Text&;
    using Ts = const Texts&;
    using Byte = unsigned char;

    bool ShowMmiMessage(int, Byte, T, T, T, T, Ts, bool) override { return Called(); }
    bool ShowMmiList(int, Byte, T, T, T, T, bool, Ts, Ts, bool) override { return Called(); }
    bool ShowMmiPinEntry(int, Byte, T, T, T, Byte, T) override { return Called(); }
    bool ShowProgress(int, Byte, T, T, T, Byte) override { return Called(); }
    bool ShowLoading(int, Byte, Text, Ts, int) override { return Called(); }
    bool ShowMessage(int, Byte, T, T, T, T, Ts, bool) override { return Called(); }
    bool ShowImage(int, Byte, T, T, T, T, int, int, Ts, bool) override { return Called(); }
    bool ShowList(int, Byte, T, T, T, Ts, T, bool, Ts, bool) override { return Called(); }
    bool ShowMultipleList(int, Byte, T, T, T, Ts, T, bool, Ts, bool) override { return Called(); }
    bool ShowPinManager(int, Byte, T, T, T, Byte, T) override { return Called(); }
    bool ShowMultipleImageList(int, Byte, T, T, T, Ts, T, bool, Ts, Ts, int, int, bool) override { return Called(); }
    bool ShowTestPopup(int, Byte, int) override { return Called(); }
    bool Close(int, Byte) override { return Called(); }
    bool Test(int) override { return Called(); }

    bool Called() { return ++calls > 0; }
    int calls = 0;
};

/** The bus carries no other text. */
std::string BusText(const std::string& text)
{
    return IsBusText(text) ? text : std::to_string(text.size());
}

void AppendValue(Eldbus_Message_Iter* entry, char kind, Input& input)
{
    const bool isArray = kind == 'a';
    const bool isText = kind == 's' || kind == 'r';
    auto* variant = eldbus_message_iter_container_new(entry, 'v', isArray ? "as" : isText ? "s" : "i");
    auto* elements = isArray ? eldbus_message_iter_container_new(variant, 'a', "s") : nullptr;
    for (int left = isArray ? input.Byte() : 0; left > 0; --left)
    {
        eldbus_message_iter_basic_append(elements, 's', BusText(input.Text()).c_str());
    }
    std::string text = BusText(input.Text());
    for (unsigned size = kind == 'r' ? input.Number() : 0; !text.empty() && text.size() < size;)
    {
        text += text;
    }
    isArray  ? (void)eldbus_message_iter_container_close(variant, elements)
    : isText ? (void)eldbus_message_iter_basic_append(variant, 's', text.c_str())
             : (void)eldbus_message_iter_basic_append(variant, 'i', kind);
    eldbus_message_iter_container_close(entry, variant);
}

BusMessage Message(Input& input, const std::string& receiver)
{
    auto call = NewCall(receiver, PathOf(Applications::DIALOGUES), Applications::INTERFACE, Applications::APP_CONTROL);
    auto* arguments = eldbus_message_iter_get(call.get());
    auto* entries = eldbus_message_iter_container_new(arguments, 'a', "{sv}");
    while (!input.Empty())
    {
        const char kind = static_cast<char>(input.Byte());
        Eldbus_Message_Iter* entry = nullptr;
        eldbus_message_iter_arguments_append(entries, "{sv}", &entry);
        eldbus_message_iter_basic_append(entry, 's', BusText(input.Text()).c_str());
        AppendValue(entry, kind, input);
        eldbus_message_iter_container_close(entries, entry);
    }
    eldbus_message_iter_container_close(arguments, entries);
    return call;
}

/** The application's object on the bus, and a sender. */
class Bus
{
public:
    std::string Name() const { return eldbus_connection_unique_name_get(m_connection.get()); }

    /** What the application gets of the call, or nothing and the error's text. */
    std::unique_ptr<app_control_s> Send(BusMessage call, std::string& error)
    {
        m_received.reset();
        std::optional<std::string> replied;
        const auto onReply = [](void* data, const Eldbus_Message* reply, Eldbus_Pending*)
        {
            const auto refusal = ErrorOf(reply).value_or(BusError{REFUSED_ERROR, ""});
            Require(refusal.name == std::string(REFUSED_ERROR),
                    "a request is taken or refused at once: " + std::string(refusal.text));
            *static_cast<std::optional<std::string>*>(data) = refusal.text;
            WakeMainLoop();
        };
        eldbus_connection_send(m_connection.get(), call.release(), onReply, &replied, -1);
        TurnMainLoopUntil([&replied] { return replied.has_value(); });
        error = *replied;
        return std::move(m_received);
    }

private:
    void m_Take(LifecycleEvent event)
    {
        m_received = std::move(event.request);
        auto* reply = eldbus_message_method_return_new(event.call.get());
        eldbus_connection_send(m_connection.get(), reply, nullptr, nullptr, -1);
    }

    const BusLibrary m_library;
    const BusConnection m_connection{eldbus_connection_get(ELDBUS_CONNECTION_TYPE_SESSION)};
    const ApplicationObject m_object{m_connection.get(), Applications::DIALOGUES,
                                     [this](LifecycleEvent event)
                                     {
                                         m_Take(std::move(event));
                                     }};
    std::unique_ptr<app_control_s> m_received;
};

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static auto* bus = new Bus;
    Input input(data, size);
    std::string error;
    const auto request = bus->Send(Message(input, bus->Name()), error);
    Require(request == nullptr || error.empty(), "a request is taken or refused: " + error);
    if (request == nullptr)
    {
        Require(!error.empty() && error != "the arguments are not a{sv}", "a refusal has its reason: " + error);
        return 0;
    }
    const auto copy = bus->Send(EncodeAppControl(Applications::DIALOGUES, bus->Name(), *request), error);
    Require(copy != nullptr && copy->data == request->data, "what is passed on is the same");

    CountingScreens screens;
    const bool handled = VESKAR_APP::ServiceProcessor(screens).HandleService(request.get());
    Require(screens.calls <= (handled ? 1 : 0), "a request makes one call at most");
    return 0;
}
