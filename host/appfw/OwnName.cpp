#include "OwnName.h"

#include "Log.h"
#include "MainLoop.h"

namespace veskar
{

bool OwnName::Request()
{
    return m_Request(ELDBUS_NAME_REQUEST_FLAG_DO_NOT_QUEUE);
}

bool OwnName::RequestFromAny()
{
    return m_Request(ELDBUS_NAME_REQUEST_FLAG_DO_NOT_QUEUE | ELDBUS_NAME_REQUEST_FLAG_ALLOW_REPLACEMENT |
                     ELDBUS_NAME_REQUEST_FLAG_REPLACE_EXISTING);
}

bool OwnName::m_Request(unsigned int flags)
{
    Answer answer;
    auto* sent = eldbus_name_request(m_connection, m_name.c_str(), flags, s_OnAnswer, &answer);
    const auto code = m_Await(answer, sent);
    return code == ELDBUS_NAME_REQUEST_REPLY_PRIMARY_OWNER || code == ELDBUS_NAME_REQUEST_REPLY_ALREADY_OWNER;
}

void OwnName::Release()
{
    Answer answer;
    m_Await(answer, eldbus_name_release(m_connection, m_name.c_str(), s_OnAnswer, &answer));
}

void OwnName::s_OnAnswer(void* data, const Eldbus_Message* reply, Eldbus_Pending*)
{
    const auto error = reply != nullptr ? ErrorOf(reply) : BusError{"", "not connected"};
    unsigned int code = 0;
    if (error)
    {
        APPFW_ERROR("the bus does not answer for the application's name: %s", error->text);
    }
    else if (!eldbus_message_arguments_get(reply, "u", &code))
    {
        APPFW_ERROR("the bus daemon's answer about the application's name is not understood");
    }
    *static_cast<Answer*>(data) = code;
    WakeMainLoop();
}

unsigned int OwnName::m_Await(Answer& answer, Eldbus_Pending* sent) const
{
    if (sent != nullptr)
    {
        TurnMainLoopUntil([&] { return answer || m_bus.IsGone(); });
        if (!answer)
        {
            eldbus_pending_cancel(sent); // answers it with an error, here and now
        }
    }
    return answer.value_or(0);
}

} // namespace veskar
