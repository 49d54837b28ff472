#pragma once

#include "league/TeamTable.h"
#include "store/LeagueFiles.h"

#include <optional>

namespace iceline {

/// The play-off series that a game belongs to.
struct SeriesOfGame {
    int series = 0; ///< 0 to 14
    bool homeIsTeamA = false;
};

/// The series that two teams have open with each other, in either order; the last one where several fit. None
/// when they have none, or theirs is decided.
std::optional<SeriesOfGame> seriesOfGame(const PlayoffSeriesTable& table, TeamIndex home, TeamIndex away);

/// The series to which the winner of one moves on; none for the final. The winner of an even series becomes
/// TeamA there, that of an odd one TeamB.
std::optional<int> nextSeries(int series);

/// Counts a game in its series and moves the winner of a series that is now decided on. A tie counts for
/// nobody.
void recordResult(PlayoffSeriesTable& table, const SeriesOfGame& game, int homeGoals, int awayGoals);

} // namespace iceline
