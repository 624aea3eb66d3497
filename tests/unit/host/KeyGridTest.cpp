/** How the arrows move through the number pad. */
#include "numpad/KeyGrid.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

using namespace veskar;

namespace
{

/** The keys that the focus is on, after each of these arrows: "^v<>". */
std::string Walk(bool withBackSpace, const std::string& arrows)
{
    const std::pair<char, Direction> directions[] = {
        {'^', Direction::Up}, {'v', Direction::Down}, {'<', Direction::Left}, {'>', Direction::Right}};
    KeyGrid grid(withBackSpace);
    std::string keys;
    for (const char arrow : arrows)
    {
        for (const auto& [sign, direction] : directions)
        {
            if (sign == arrow)
            {
                grid.Move(direction);
            }
        }
        const std::string key = grid.Places()[grid.Current()].key;
        keys += key == "BackSpace" ? "B" : key;
    }
    return keys;
}

} // namespace

TEST(KeyGrid, MovesOneKeyAndStaysAtEachEdge)
{
    EXPECT_EQ(Walk(false, "^<>>>vvv"), "1123369"
                                       "0");
    EXPECT_EQ(Walk(false, "v>v<<^"), "458774");
}

TEST(KeyGrid, GoesToTheNearestKeyOfAShorterRow)
{
    EXPECT_EQ(Walk(false, "vvv<>v^"), "4700008") << "the zero stands alone in the middle";
    EXPECT_EQ(Walk(true, "vvv>>^"), "470BB9");
    EXPECT_EQ(Walk(true, ">>vvv<"), "2369B0");
}
