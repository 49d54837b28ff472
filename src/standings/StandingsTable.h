#pragma once

#include "shell/ApplicationState.h"
#include "store/TeamRecord.h"

namespace iceline {

class Files;

using StandingsTable = decltype(ApplicationState::StandingsTable);

/// The columns of StandingsTable.
enum class StandingsFigure {
    Wins,
    Losses,
    Ties,
    Points,
    GP,
    GF,
    GA,
    Diff,        ///< goal difference a game, as a whole number
    PowerRanking ///< in hundredths
};

inline int figureOf(const StandingsTable& table, TeamIndex team, StandingsFigure figure) {
    return table[team][static_cast<std::size_t>(figure)];
}

/// The figures of the 24 teams, from the beginning of each team's record of the regular season.
StandingsTable readStandingsTable(Files& files);

/// A fraction of a team's record of the regular season, times `scale`, as a whole number of 16 bits, a tie to
/// the even one. Throws FileError naming the file and the item when it does not fit.
int scaledFigure(TeamIndex team, const TeamRecord& record, double TeamRecord::*member, int scale);

} // namespace iceline
