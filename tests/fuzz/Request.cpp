// A request, from the message on the bus to the call of the window manager.
//
// Each value of the input: its kind (s text, r repeated text, a array, anything else a type that no request has), its
// key, and what belongs to that kind.

#include "AppControlCodec.h"
#include "BusName.h"
#include "IWindowManager.h"
#include "Input.h"
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

/** Counts the calls. */
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
std::string BusText(std::string text)
{
    return IsBusText(text) ? text : std::to_string(text.size());
}

std::string Repeated(const std::string& text, unsigned times)
{
    constexpr std::size_t LONGEST = 2 * LONGEST_TEXT;
    std::string repeated;
    while (times-- > 0 && repeated.size() + text.size() <= LONGEST)
    {
        repeated += text;
    }
    return repeated;
}

void AppendValue(Eldbus_Message_Iter* entry, char kind, Input& input)
{
    const char* const types[] = {"i", "v", "ai", "as", "s"};
    const char* type = kind == 's' || kind == 'r' ? "s" : kind == 'a' ? "as" : types[input.Byte() % 3];
    auto* variant = eldbus_message_iter_container_new(entry, 'v', type);
    const std::string text = BusText(input.Text());
    if (*type == 's')
    {
        eldbus_message_iter_basic_append(variant, 's', (kind == 'r' ? Repeated(text, input.Number()) : text).c_str());
    }
    else if (*type == 'a')
    {
        auto* elements = eldbus_message_iter_container_new(variant, 'a', type + 1);
        for (int left = input.Byte(); left > 0; --left)
        {
            type[1] == 's' ? eldbus_message_iter_basic_append(elements, 's', BusText(input.Text()).c_str())
                           : eldbus_message_iter_basic_append(elements, 'i', left);
        }
        eldbus_message_iter_container_close(variant, elements);
    }
    else if (*type == 'v')
    {
        auto* inner = eldbus_message_iter_container_new(variant, 'v', "s");
        eldbus_message_iter_basic_append(inner, 's', text.c_str());
        eldbus_message_iter_container_close(variant, inner);
    }
    else
    {
        eldbus_message_iter_basic_append(variant, 'i', kind);
    }
    eldbus_message_iter_container_close(entry, variant);
}

BusMessage Message(Input& input)
{
    auto call = NewCall(Applications::DIALOGUES, PathOf(Applications::DIALOGUES), Applications::INTERFACE,
                        Applications::APP_CONTROL);
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

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size)
{
    static const BusLibrary library;
    Input input(data, size);
    app_control_s request;
    if (const auto refusal = DecodeAppControl(Message(input).get(), request))
    {
        Require(!refusal->empty() && IsBusText(*refusal), "a refusal is a text for the sender: " + *refusal);
        return 0;
    }
    const auto again = EncodeAppControl(Applications::DIALOGUES, Applications::DIALOGUES, request);
    app_control_s copy;
    Require(again && !DecodeAppControl(again.get(), copy) && copy.data == request.data,
            "what is passed on is the same");

    CountingScreens screens;
    const bool handled = VESKAR_APP::ServiceProcessor(screens).HandleService(&request);
    Require(screens.calls <= (handled ? 1 : 0), "a request makes one call at most");
    return 0;
}
