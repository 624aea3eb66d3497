/** Who opened a menu, and so hears what the application asks because of it. */
#pragma once

#include <deque>
#include <string>

namespace veskar
{
/**
 * The application handles one menu request after the other, and each makes it ask for a task first and then, where it
 * knows the position, open it. So a task begins the turn of the next caller, and a position belongs to the turn that
 * has begun; a caller whose position is unknown takes nothing from the one after it.
 */
class MenuCallers
{
public:
    void Add(const std::string& client);
    /** Ends whatever this client still waits for: it is gone, or its request was refused. */
    void Remove(const std::string& client);

    /** The client to tell; empty when nobody here opened a menu. */
    std::string NextTurn();
    std::string EndTurn();

private:
    std::deque<std::string> m_waiting;
    std::string m_turn;
};
} // namespace veskar
