/** In which order an application gets events of its windows and calls. */
#include "appfw/LifecycleQueue.h"

#include <gtest/gtest.h>

using namespace veskar;

// A message that no bus has carried has no sender; here its destination replaces it.
extern "C" const char* __wrap_eldbus_message_sender_get(const Eldbus_Message* message)
{
    return eldbus_message_destination_get(message);
}

namespace
{

/** The toolkit's loop needs more than one turn to notice a timer. */
constexpr int ENOUGH_TURNS = 50;

class LifecycleQueueTest : public testing::Test
{
protected:
    static LifecycleEvent Request(const std::string& name, const std::string& sender = "a.sender")
    {
        auto request = std::make_unique<app_control_s>();
        request->appId = name;
        return {LifecycleKind::Request, std::move(request), NewCall(sender, "/path", "an.interface", "Method")};
    }

    static std::string NameOf(const LifecycleEvent& event)
    {
        switch (event.kind)
        {
        case LifecycleKind::Request:
            return event.request->appId;
        case LifecycleKind::Pause:
            return "pause";
        case LifecycleKind::Resume:
            return "resume";
        default:
            return "another";
        }
    }

    /** What was delivered up to the end of the next turn that delivers anything; a space follows each name. */
    std::string AfterOneTurn()
    {
        const std::string before = m_delivered;
        for (int turn = 0; turn < ENOUGH_TURNS && m_delivered == before; ++turn)
        {
            ecore_main_loop_iterate();
        }
        return m_delivered;
    }

    std::string AfterAllTurns()
    {
        std::string before;
        do
        {
            before = m_delivered;
        } while (AfterOneTurn() != before);
        return m_delivered;
    }

    /** The names of what was not delivered. */
    std::string Rest()
    {
        std::string rest;
        while (const auto event = m_queue.TakeCall())
        {
            rest += NameOf(*event) + " ";
        }
        return rest;
    }

    BusLibrary m_library;
    std::string m_delivered;
    std::function<void(const std::string& name)> m_onDelivered = [](const std::string&) {
    };
    LifecycleQueue m_queue{[this](LifecycleEvent& event)
                           {
                               m_delivered += NameOf(event) + " ";
                               m_onDelivered(NameOf(event));
                           }};
};

} // namespace

TEST_F(LifecycleQueueTest, DeliversNothingBeforeItIsStartedAndThenOneThingATurn)
{
    m_queue.AddCall(Request("first"));
    m_queue.AddCall(Request("second"));
    EXPECT_EQ(AfterAllTurns(), "");
    m_queue.Start();
    EXPECT_EQ(m_delivered, "") << "not from the call itself";
    EXPECT_EQ(AfterOneTurn(), "first ");
    EXPECT_EQ(AfterOneTurn(), "first second ");
    EXPECT_EQ(AfterAllTurns(), "first second ");
}

TEST_F(LifecycleQueueTest, DeliversTheFirstCallBeforeTheWindowsThatCreateHasShown)
{
    m_queue.AddWindowEvent(LifecycleKind::Resume);
    m_queue.AddCall(Request("first"));
    m_queue.AddCall(Request("second"));
    m_queue.Start();
    EXPECT_EQ(AfterAllTurns(), "first resume second ");
}

TEST_F(LifecycleQueueTest, DeliversWhatACallDidToTheWindowsBeforeTheNextCall)
{
    m_onDelivered = [this](const std::string& name)
    {
        if (name == "first")
        {
            m_queue.AddWindowEvent(LifecycleKind::Pause);
            m_queue.AddWindowEvent(LifecycleKind::Resume);
        }
    };
    m_queue.Start();
    m_queue.AddCall(Request("first"));
    m_queue.AddCall(Request("second"));
    EXPECT_EQ(AfterAllTurns(), "first pause resume second ");
}

TEST_F(LifecycleQueueTest, GivesBackTheCallsThatItHasNotDelivered)
{
    m_onDelivered = [this](const std::string&)
    {
        m_queue.Stop();
    };
    m_queue.AddCall(Request("first"));
    m_queue.AddCall(Request("second"));
    m_queue.AddWindowEvent(LifecycleKind::Pause);
    m_queue.AddCall(Request("third"));
    m_queue.Start();
    EXPECT_EQ(AfterAllTurns(), "first ");
    EXPECT_TRUE(m_queue.HoldsRequest());
    EXPECT_EQ(Rest(), "second third ");
    EXPECT_FALSE(m_queue.HoldsRequest());
}

TEST_F(LifecycleQueueTest, PutsTheCallsOfOneSenderFirstAndKeepsTheirOrder)
{
    m_queue.AddCall(Request("a1", "a.sender"));
    m_queue.AddCall(Request("b1", "b.sender"));
    m_queue.AddCall({LifecycleKind::Terminate, nullptr, nullptr});
    m_queue.AddCall(Request("a2", "a.sender"));
    m_queue.AddCall(Request("b2", "b.sender"));
    m_queue.PutFirst("b.sender");
    EXPECT_EQ(Rest(), "b1 b2 a1 another a2 ");
}
