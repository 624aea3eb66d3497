/** Which key of the pad is where, and how the arrows move between them. */
#pragma once

#include <string_view>
#include <vector>

namespace veskar
{

enum class Direction
{
    Up,
    Down,
    Left,
    Right
};

class KeyGrid
{
public:
    struct Place
    {
        int row = 0;
        int column = 0;
        /** As the remote control calls it. */
        const char* key = nullptr;
        /** The columns that it takes: the 0 is wide, so that its row has no gap. */
        int from = column;
        int width = 1;
    };

    /** Ten digits, and with `withBackSpace` a key that takes the last one back. It begins on the 1. */
    explicit KeyGrid(bool withBackSpace);

    const std::vector<Place>& Places() const { return m_places; }

    /** The index of the current key in Places. */
    std::size_t Current() const { return m_current; }

    /** To the next key in that direction: the nearest of the next row, or of the same row. It stays at the edge. */
    void Move(Direction direction);

private:
    void m_MoveToRow(int row);
    void m_MoveToColumn(int column);

    std::vector<Place> m_places;
    std::size_t m_current = 0;
};

} // namespace veskar
