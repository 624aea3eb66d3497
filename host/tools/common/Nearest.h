/** The known word that somebody may have meant. */
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace veskar
{

/** How many letters have to be put in, left out or replaced to make one word of the other. */
inline std::size_t Distance(const std::string& from, const std::string& to)
{
    std::vector<std::size_t> row(to.size() + 1);
    for (std::size_t column = 0; column <= to.size(); ++column)
    {
        row[column] = column;
    }
    for (std::size_t line = 1; line <= from.size(); ++line)
    {
        std::size_t diagonal = std::exchange(row[0], line);
        for (std::size_t column = 1; column <= to.size(); ++column)
        {
            const std::size_t replaced = diagonal + (from[line - 1] == to[column - 1] ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row.back();
}

/** Empty when none is near: a third of the word's letters may be wrong. */
inline std::string Nearest(const std::string& word, const std::vector<std::string>& known)
{
    const auto nearer = [&word](const std::string& one, const std::string& other)
    {
        return Distance(word, one) < Distance(word, other);
    };
    const auto nearest = std::min_element(known.begin(), known.end(), nearer);
    const bool isNear = nearest != known.end() && Distance(word, *nearest) <= std::max<std::size_t>(1, word.size() / 3);
    return isNear ? *nearest : "";
}

/** " (did you mean "…"?)", or nothing. */
inline std::string Suggestion(const std::string& word, const std::vector<std::string>& known)
{
    const std::string nearest = Nearest(word, known);
    return nearest.empty() ? "" : " (did you mean \"" + nearest + "\"?)";
}

} // namespace veskar
