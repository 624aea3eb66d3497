#include "BusNames.h"

#include "Log.h"

namespace veskar
{

BusNames::BusNames(Eldbus_Connection* connection) : m_connection(connection)
{
    // Subscribe before asking for the list, so that no change is missed in between.
    m_ownerChanges = eldbus_signal_handler_add(m_connection, ELDBUS_FDO_BUS, ELDBUS_FDO_PATH, ELDBUS_FDO_INTERFACE,
                                               "NameOwnerChanged", s_OnOwnerChanged, this);
    m_Ask("ListNames", m_owned);
    m_Ask("ListActivatableNames", m_activatable);
}

BusNames::~BusNames()
{
    for (const Question* question : {&m_owned, &m_activatable})
    {
        if (question->pending != nullptr)
        {
            eldbus_pending_cancel(question->pending); // answers it with an error, here and now
        }
    }
    eldbus_signal_handler_del(m_ownerChanges);
}

void BusNames::m_Ask(const char* method, Question& question)
{
    auto call = NewCall(ELDBUS_FDO_BUS, ELDBUS_FDO_PATH, ELDBUS_FDO_INTERFACE, method);
    question.pending = eldbus_connection_send(m_connection, call.release(), s_OnNames, &question, -1);
}

void BusNames::s_OnNames(void* data, const Eldbus_Message* reply, Eldbus_Pending*)
{
    auto* question = static_cast<Question*>(data);
    question->pending = nullptr;
    Eldbus_Message_Iter* list = nullptr;
    if (ErrorOf(reply) || !eldbus_message_arguments_get(reply, "as", &list))
    {
        APPFW_ERROR("the bus daemon does not tell its names");
        return;
    }
    const char* name = nullptr;
    while (eldbus_message_iter_get_and_next(list, 's', &name))
    {
        question->names.insert(name);
    }
    if (question == &question->self->m_owned)
    {
        question->self->m_TellAbsence();
    }
}

void BusNames::OnAbsence(const std::string& name, std::function<void()> absent)
{
    m_watched = name;
    m_absent = std::move(absent);
}

void BusNames::m_TellAbsence() const
{
    if (m_absent && !HasOwner(m_watched))
    {
        m_absent();
    }
}

void BusNames::s_OnOwnerChanged(void* data, const Eldbus_Message* message)
{
    const char* name = nullptr;
    const char* before = nullptr;
    const char* now = nullptr;
    if (!eldbus_message_arguments_get(message, "sss", &name, &before, &now))
    {
        return;
    }
    auto& owned = static_cast<BusNames*>(data)->m_owned.names;
    if (*now != '\0')
    {
        owned.insert(name);
    }
    else
    {
        owned.erase(name);
        static_cast<BusNames*>(data)->m_TellAbsence();
    }
}

} // namespace veskar
