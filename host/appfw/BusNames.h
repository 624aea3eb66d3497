/** Which names are on the bus, as last reported. Queries never wait for the bus daemon. */
#pragma once

#include <functional>
#include <set>
#include <string>

#include "Bus.h"

namespace veskar
{

/**
 * Keeps the names that have an owner and the names for which the bus can start one. The constructor requests both
 * lists; they arrive before the reply to any later call on the same connection. Main thread only.
 */
class BusNames
{
public:
    explicit BusNames(Eldbus_Connection* connection);
    ~BusNames();

    BusNames(const BusNames&) = delete;
    BusNames& operator=(const BusNames&) = delete;

    bool HasOwner(const std::string& name) const { return m_owned.names.count(name) != 0; }

    /** True when a message to the name reaches somebody: the name has an owner, or the bus can start one. */
    bool IsReachable(const std::string& name) const { return HasOwner(name) || m_activatable.names.count(name) != 0; }

    /**
     * Calls `absent` whenever the name is seen to have no owner: when the list comes, and when its owner disappears.
     * One name at a time; null ends it.
     */
    void OnAbsence(const std::string& name, std::function<void()> absent);

private:
    /** Names that are asked for; `pending` until the answer has come. */
    struct Question
    {
        BusNames* self;
        std::set<std::string> names{};
        Eldbus_Pending* pending = nullptr;
    };

    void m_Ask(const char* method, Question& question);
    void m_TellAbsence() const;

    static void s_OnNames(void* data, const Eldbus_Message* reply, Eldbus_Pending* pending);
    static void s_OnOwnerChanged(void* data, const Eldbus_Message* message);

    Eldbus_Connection* m_connection;
    Eldbus_Signal_Handler* m_ownerChanges;
    std::string m_watched;
    std::function<void()> m_absent;
    Question m_owned{this};
    Question m_activatable{this};
};

} // namespace veskar
