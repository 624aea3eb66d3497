#include "MenuCallers.h"

#include <algorithm>
#include <utility>

namespace veskar
{
void MenuCallers::Add(const std::string& client)
{
    m_waiting.push_back(client);
}

void MenuCallers::Remove(const std::string& client)
{
    m_waiting.erase(std::remove(m_waiting.begin(), m_waiting.end(), client), m_waiting.end());
    if (m_turn == client)
    {
        m_turn.clear();
    }
}

std::string MenuCallers::NextTurn()
{
    m_turn.clear();
    if (!m_waiting.empty())
    {
        m_turn = std::move(m_waiting.front());
        m_waiting.pop_front();
    }
    return m_turn;
}

std::string MenuCallers::EndTurn()
{
    return std::exchange(m_turn, {});
}
} // namespace veskar
