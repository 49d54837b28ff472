#pragma once

#include "league/GameSheet.h"
#include "store/PlayerFiles.h"

#include <array>

namespace iceline {

/// Power-play and shorthanded goals of a team's roster rows, counted from the scoring summary.
struct SpecialGoals {
    TeamSheet::RowFigures powerPlay{};
    TeamSheet::RowFigures shorthanded{};
};

/// Counts a side's entries of the scoring summary; one with a scorer outside the roster is passed over.
SpecialGoals specialGoals(const GameSheet& game, Side side);

/// A roster row's figures of a game. For a goalie `goals` are those that he let in and `shots` those that he
/// faced.
struct PlayerGame {
    int goals = 0;
    int assists = 0;
    int shots = 0;
    int penaltyMinutes = 0;
    int powerPlayGoals = 0;
    int shorthandedGoals = 0;

    /// A player with a blank line in the game has played no game, even if he dressed.
    bool hasPlayed() const { return goals != 0 || assists != 0 || shots != 0 || penaltyMinutes != 0; }
};

PlayerGame playerGame(const TeamSheet& team, const SpecialGoals& special, RosterIndex row);

/// Adds a game to a skater's line and renews his averages and his rating. A season length of 0 leaves its
/// term out of the rating.
void updateSkater(SkaterStats& line, const PlayerGame& game, int seasonLength);

/// Adds a game to a goalie's line. Who has played gets the game's decision, which is that of `ownGoals`
/// against `otherGoals`. The rating goes by the saving percentage from before the game; it is 0 for a
/// season length of 0.
void updateGoalie(GoalieStats& line, const PlayerGame& game, int ownGoals, int otherGoals, int seasonLength);

/// Adds a game to the 25 lines of a side's team.
void updatePlayerStats(TeamPlayerStats& stats, const GameSheet& game, Side side, int seasonLength);

/// Points of the first, second and third star.
inline constexpr std::array<int, 3> PointsOfStars{30, 20, 10};

} // namespace iceline
