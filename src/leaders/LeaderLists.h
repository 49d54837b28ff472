#pragma once

#include "shell/ApplicationState.h"
#include "shell/LeaderColumns.h"

namespace iceline {

/// How a leader table is sorted.
struct LeaderSort {
    int column = 0;
    bool ascending = false; ///< false: highest value first
};

/// A row of a leader table in its place.
struct LeaderLine {
    int number = 0; ///< from 1
    TeamIndex team;
    std::string name;                 ///< a player's or a coach's as it stands; empty in the teams' table
    std::vector<std::string> figures; ///< by column, as they are shown, with leading zero
};

/// A leader table in the order in which it is shown.
struct LeaderList {
    std::vector<LeaderLine> lines;

    /// True when the first turn of the selection gave the first line. A team without games takes a turn and
    /// gives none.
    bool startsWithFirstTurn = false;
};

/// The update step of the leader tables: the first `places` of the first `count` rows in the order of `sort`.
LeaderList playerLeaders(const ApplicationState& state, int count, LeaderSort sort, int places);
LeaderList goalieLeaders(const ApplicationState& state, int count, LeaderSort sort, int places);
LeaderList starLeaders(const ApplicationState& state, int count, LeaderSort sort, int places);

/// The same for the teams, of which `places` take their turn. The column may be NoColumn.
LeaderList teamLeaders(const ApplicationState& state, LeaderSort sort, int places);

/// The coaches, named in the order of the coaches' table, in which they stand as the teams in theirs: all of
/// them, or those who have games.
enum class CoachesListed { All, WithGames };
LeaderList coachLeaders(const ApplicationState& state, const std::vector<std::string>& names, LeaderSort sort,
                        CoachesListed listed);

} // namespace iceline
