#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace iceline {

/// What the list of all box scores begins with, down to the heads of its table; every import adds a row.
std::string boxScoreListHead();

/// A row of the list.
struct ListedGame {
    std::string_view number;
    std::string_view kind; ///< its letter
    std::string_view away; ///< abbreviation
    std::string_view awayGoals;
    std::string_view home;
    std::string_view homeGoals;
    std::string_view page; ///< as a link within `BoxScores`
};

/// The rows of a list, in its order. Whatever is no row of an import is passed over. They point into `list`.
std::vector<ListedGame> listedGames(std::string_view list);

} // namespace iceline
