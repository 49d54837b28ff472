#pragma once

#include "league/GameSheet.h"
#include "store/LeagueFiles.h"

#include <optional>
#include <string>

namespace iceline {

// Records of a single game. A record falls only to a greater figure: who reached it first keeps it. Within a
// game that is the one met first.

/// The players' records in power-play and shorthanded goals, row by row and the away team first.
void updateSpecialGoalRecords(AllTimePlayerRecords& records, const GameSheet& game,
                              const GameRosters& rosters);

/// The other records of players, by the skaters of one side.
void updatePlayerRecords(AllTimePlayerRecords& records, const GameSheet& game, Side side,
                         const GameRosters& rosters);

/// The goalies' records, by the goalies of one side. The record in shutout saves asks for no more than that
/// the other team scored no goal.
void updateGoalieRecords(AllTimeGoalieRecords& records, const GameSheet& game, Side side,
                         const GameRosters& rosters);

/// The coaches of the two teams of a game.
struct GameCoaches {
    std::optional<std::string> home;
    std::optional<std::string> away;

    const std::optional<std::string>& of(Side side) const { return side == Side::Home ? home : away; }
};

/// The records of teams, the away team first in each; the crowd's is the home team's. A coach enters his pair
/// when his team breaks the record; the pair stays as it was when a team without a coach does.
void updateLeagueRecords(AllTimeLeagueRecords& records, CoachesLeagueRecords& coachRecords,
                         const GameSheet& game, const GameCoaches& coaches);

} // namespace iceline
