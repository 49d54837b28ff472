#pragma once

#include "shell/ApplicationState.h"

#include <limits>

namespace iceline {

/// How a leader table is sorted.
struct LeaderSort {
    int column = 0;         ///< NoColumn: the natural order
    bool ascending = false; ///< false: highest value first
};

/// A row of a leader table in its place.
struct LeaderLine {
    int number = 0;                   ///< from 1
    TeamIndex team;                   ///< BlankTeam in the coaches' table
    std::string name;                 ///< a player's or a coach's, unchanged; empty in the teams' table
    std::vector<std::string> figures; ///< by column, as they are shown, with leading zero
};

/// A leader table in the order in which it is shown.
struct LeaderList {
    std::vector<LeaderLine> lines;

    /// True when the first turn of the selection gave the first line. A team without games takes a turn and
    /// gives none.
    bool startsWithFirstTurn = false;
};

inline constexpr int AllRows = std::numeric_limits<int>::max();

/// The update step of the leader tables: the first `places` rows in the order of `sort`, of a table's first
/// `count` rows.
LeaderList playerLeaders(const ApplicationState& state, LeaderSort sort, int places = AllRows,
                         int count = AllRows);
LeaderList goalieLeaders(const ApplicationState& state, LeaderSort sort, int places = AllRows,
                         int count = AllRows);
LeaderList starLeaders(const ApplicationState& state, LeaderSort sort, int places = AllRows,
                       int count = AllRows);

/// The same for the teams, of which `places` take their turn.
LeaderList teamLeaders(const ApplicationState& state, LeaderSort sort, int places = AllRows);

/// The coaches, named in the order of their table: all of them, or those who have games.
enum class CoachesListed { All, WithGames };
LeaderList coachLeaders(const ApplicationState& state, const std::vector<std::string>& names, LeaderSort sort,
                        CoachesListed listed);

} // namespace iceline
