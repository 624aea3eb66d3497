/** Keeps track of who waits for the answer of which screen. */
#pragma once

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>

namespace veskar
{
struct ScreenIds
{
    std::int32_t uiId;
    std::uint8_t sourceId;

    bool operator==(const ScreenIds& other) const { return uiId == other.uiId && sourceId == other.sourceId; }
};

struct Answer
{
    ScreenIds screen;
    std::int32_t kind;
    std::uint8_t button;
    std::uint8_t item;
    std::string data;
};

/** How one who waits learns what became of the request; one of the two is called, once. */
struct Outcome
{
    std::function<void(const Answer&)> answered;
    std::function<void(const sdbus::Error&)> failed;
};

/** One request that waits for its answer. It ends with the answer, or when the client that sent it leaves the bus. */
struct Waiter
{
    std::string client;
    ScreenIds screen;
    Outcome outcome;
    /** The application's process that has handled the request and will answer it. Empty until it has. */
    std::string process = {};
    /** The process that got the request left before it replied, so the next one answers. */
    bool passedOn = false;
};

/**
 * Several waiters can have the same ids. An answer is for each of them whose request the application had handled when
 * it answered. The application handles one request at a time, and answers for a screen that is replaced before it has
 * handled the request that replaces it. Therefore:
 *
 *  - Two handled requests with the same ids made one screen (a progress screen that was updated in place). Both get its
 *    answer.
 *  - Of two messages with the same ids, the first is answered as closed while the second is still being handled. The
 *    second keeps waiting.
 *  - A request whose screen was closed without an answer keeps waiting, and gets the next answer with these ids.
 *
 * The daemon sends every request on the connection on which the answers arrive, and the bus keeps the order of one
 * connection's messages. So the daemon sees replies and answers in the order in which the application sent them.
 */
class Screens
{
public:
    std::weak_ptr<Waiter> Add(std::string client, ScreenIds screen, Outcome outcome);

    /** The request was refused or could not be delivered. Tells the waiter why. */
    void Fail(const std::shared_ptr<Waiter>& waiter, const sdbus::Error& error);
    /** `process` has handled the request and will answer it. Empty when it has ended already: the waiter fails. */
    void Delivered(const std::shared_ptr<Waiter>& waiter, const std::string& process);
    /** Passes on an answer that `process` sent. Returns how many waiters it was for. */
    std::size_t Answered(const Answer& answer, const std::string& process);
    /**
     * The application's process gave up its name. It passes the requests that it has not handled on to the next
     * process, whose answers come on another connection. So an answer of the next process can overtake the reply to
     * such a request, and counts for it from now on.
     */
    void ProcessLeft();
    void ProcessCame(const std::string& process);
    /**
     * The process has left the bus after its last answer. Those who still wait for an answer of it fail. Returns how
     * many they were.
     */
    std::size_t ProcessEnded(const std::string& process);
    void RemoveClient(const std::string& client);

private:
    std::list<std::shared_ptr<Waiter>> m_waiters;
};

} // namespace veskar
