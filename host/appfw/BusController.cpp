/** The controller's interface as method calls to the middleware on the bus. */
#include <IVesKarController.h>

#include <cstring>
#include <string>

#include "Application.h"
#include "BusName.h"
#include "Log.h"
#include "TvBus.h"

namespace
{
using namespace veskar;

template <typename... Args>
bool Call(const std::string& method, const char* signature, Args... args)
{
    auto call = NewCall(Controller::BUS_NAME, PathOf(Controller::BUS_NAME), Controller::INTERFACE, method);
    const bool sent = eldbus_message_arguments_append(call.get(), signature, args...) &&
                      Application::Instance().Send(std::move(call), [](const Eldbus_Message* reply)
                                                   { LogRefusal(reply, "the middleware"); });
    if (!sent)
    {
        APPFW_ERROR("%s cannot be sent: no bus", method.c_str());
    }
    return sent;
}

class BusController final : public VESKAR_API::IVesKarController
{
public:
    virtual ~BusController() = default;

    void Reserved1() override {}
    void Reserved2() override {}
    void Reserved3() override {}
    void Reserved4() override {}

    bool OpenMenuPosition(int menuPosition) override { return Call(Controller::OPEN_MENU_POSITION, "i", menuPosition); }

    bool SendResponse(int uiId, unsigned char sourceId, int kind, unsigned char button, unsigned char item,
                      std::string data) override
    {
        const bool fit = IsBusText(data);
        if (!fit)
        {
            APPFW_ERROR("the answer of ui %d, source %d is dropped: its %zu bytes are no text that the bus carries",
                        uiId, sourceId, data.size());
        }
        const bool sent =
            fit && Call(Controller::SEND_RESPONSE, "iyiyys", uiId, sourceId, kind, button, item, data.c_str());
        // It may be a PIN, and this copy belongs to this function.
        explicit_bzero(data.data(), data.size());
        return sent;
    }
};

} // namespace

namespace VESKAR_API
{
IVesKarController* IVesKarController::Instance()
{
    static BusController sController;
    return Application::Instance().HasBus() ? &sController : nullptr;
}

} // namespace VESKAR_API
