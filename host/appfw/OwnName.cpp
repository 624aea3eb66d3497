#include "OwnName.h"

#include <optional>

#include "Log.h"
#include "MainLoop.h"

namespace veskar
{
namespace
{

/** 0 for an error. */
using Answer = std::optional<unsigned int>;

void TakeAnswer(void* data, const Eldbus_Message* reply, Eldbus_Pending*)
{
    const char* name = nullptr;
    const char* text = nullptr;
    unsigned int code = 0;
    if (reply == nullptr || eldbus_message_error_get(reply, &name, &text))
    {
        APPFW_ERROR("the bus refuses the application's name: %s", text != nullptr ? text : "not connected");
    }
    else if (!eldbus_message_arguments_get(reply, "u", &code))
    {
        APPFW_ERROR("the bus daemon's answer about the application's name is not understood");
    }
    *static_cast<Answer*>(data) = code;
    WakeMainLoop();
}

unsigned int Await(Answer& answer, const Eldbus_Pending* sent)
{
    if (sent != nullptr)
    {
        TurnMainLoopUntil([&] { return answer.has_value(); });
    }
    return answer.value_or(0);
}

} // namespace

bool OwnName::Request()
{
    Answer answer;
    const auto* sent =
        eldbus_name_request(m_connection, m_name.c_str(), ELDBUS_NAME_REQUEST_FLAG_DO_NOT_QUEUE, TakeAnswer, &answer);
    const auto code = Await(answer, sent);
    return code == ELDBUS_NAME_REQUEST_REPLY_PRIMARY_OWNER || code == ELDBUS_NAME_REQUEST_REPLY_ALREADY_OWNER;
}

void OwnName::Release()
{
    Answer answer;
    Await(answer, eldbus_name_release(m_connection, m_name.c_str(), TakeAnswer, &answer));
}

} // namespace veskar
