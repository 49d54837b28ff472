#pragma once

#include "games/GameReport.h"
#include "shell/ApplicationState.h"

#include <array>
#include <optional>

namespace iceline {

/// What the choice of the stars looks at in a roster row.
struct StarRow {
    int Pts = 0;
    int G = 0; ///< of a goalie: goals that he let in
    int A = 0;
    int SOG = 0; ///< of a goalie: shots that he faced
    bool goalie = false;
    bool Used = false; ///< may not be chosen as a skater star
};

/// Both rosters: rows 0 to 24 are the home team's, 25 to 49 the away team's.
inline constexpr std::size_t StarRows = 2 * RosterRows;
using StarTable = std::array<StarRow, StarRows>;

/// What decides by which rules the stars of a game are chosen.
struct StarRules {
    int GameLastPeriod = 0;
    int homeGoals = 0;
    int awayGoals = 0;
    int lastScorer = 0; ///< byte of the roster row of the last goal's scorer; he may be none
};

/// The three stars as rows of the table; none where the rules name nobody.
using StarChoice = std::array<std::optional<std::size_t>, 3>;

/// Chooses the stars. Skaters are ranked by points, goals, assists and shots; of a full tie the first rows of
/// the table are taken. Goalies come in by rules of their own after a shutout and in overtime.
StarChoice threeStars(const StarTable& table, const StarRules& rules);

/// Chooses the stars of a game that the league can take, with the shared GameLastPeriod, and keeps them in
/// Star and StarSlot; a star for whom the rules name nobody stays as it was.
void selectStars(ApplicationState& state, const PlayedGame& game);

} // namespace iceline
