#include "KeyGrid.h"

#include <cstdlib>
#include <limits>

namespace veskar
{

KeyGrid::KeyGrid(bool withBackSpace)
    : m_places{{0, 0, "1"}, {0, 1, "2"}, {0, 2, "3"}, {1, 0, "4"}, {1, 1, "5"},
               {1, 2, "6"}, {2, 0, "7"}, {2, 1, "8"}, {2, 2, "9"}, {3, 1, "0", 0, withBackSpace ? 2 : 3}}
{
    if (withBackSpace)
    {
        m_places.push_back({3, 2, "BackSpace"});
    }
}

void KeyGrid::Move(Direction direction)
{
    const Place& from = m_places[m_current];
    switch (direction)
    {
    case Direction::Up:
        m_MoveToRow(from.row - 1);
        break;
    case Direction::Down:
        m_MoveToRow(from.row + 1);
        break;
    case Direction::Left:
        m_MoveToColumn(from.column - 1);
        break;
    case Direction::Right:
        m_MoveToColumn(from.column + 1);
        break;
    }
}

void KeyGrid::m_MoveToRow(int row)
{
    const int column = m_places[m_current].column;
    int nearest = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < m_places.size(); ++i)
    {
        const int distance = std::abs(m_places[i].column - column);
        if (m_places[i].row == row && distance < nearest)
        {
            nearest = distance;
            m_current = i;
        }
    }
}

void KeyGrid::m_MoveToColumn(int column)
{
    const int row = m_places[m_current].row;
    for (std::size_t i = 0; i < m_places.size(); ++i)
    {
        if (m_places[i].row == row && m_places[i].column == column)
        {
            m_current = i;
        }
    }
}

} // namespace veskar
