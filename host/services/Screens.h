/** Who waits for the answer of which screen. */
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
 * The rule for several waiters with the same ids: an answer is for every one of them whose request the application had
 * handled when it answered. The application handles one request at a time and answers for the screen that it replaces
 * before it has handled the one that replaces it. So two handled requests with the same ids that both wait for an
 * answer made one screen (a progress screen updated in place) and share what comes of it; while of two messages with
 * the same ids the first is answered as closed before the second counts, and the second waits on. A request whose
 * screen the application closed without an answer waits on too, and shares the next answer with these ids if one comes.
 *
 * It holds because the daemon sends every request itself, on the connection on which the answers come: the bus keeps
 * the order of one connection's messages.
 */
class Screens
{
public:
    std::weak_ptr<Waiter> Add(std::string client, ScreenIds screen, Outcome outcome);

    /** The request was refused, or went nowhere: its waiter learns why. */
    void Fail(const std::shared_ptr<Waiter>& waiter, const sdbus::Error& error);
    /** The request was handled, and is this process's from now on; empty: of one that has gone again. */
    void Delivered(const std::shared_ptr<Waiter>& waiter, const std::string& process);
    /** How many waiters the answer that this process sent was for. */
    std::size_t Answered(const Answer& answer, const std::string& process);
    /**
     * The application's process gave up its name. What it had not handled, it passes on to the next one, whose answers
     * come on a connection of their own: nothing tells any more which came first, so they count from now on.
     */
    void ProcessLeft();
    void ProcessCame(const std::string& process);
    /** The process is off the bus, and its last answer has come: who still waits for one learns it. */
    void ProcessEnded(const std::string& process);
    void RemoveClient(const std::string& client);

private:
    std::list<std::shared_ptr<Waiter>> m_waiters;
};

} // namespace veskar
