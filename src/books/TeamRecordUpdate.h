#pragma once

#include "league/GameSheet.h"
#include "store/TeamRecord.h"

#include <string>

namespace iceline {

/// Whose line of `Records.txt` a game moves: that of a team, or of its coach.
enum class RecordHolder { Team, Coach };

/// The letter of a side's result: "W", "L" or "T". A game decided in overtime is won and lost like any other.
std::string resultLetter(const GameSheet& game, Side side);

/// Adds a game to the line of the side's holder: the running sums, then every average, percentage and power
/// ranking from the new sums. Of the home and away figures only those of `side` move, and of the home side
/// the ArenaMeter. A coach's line differs in four fields: LastResult holds the
/// game's letter, SOGPct is rounded once, PenPG keeps its decimal, AuxAgainst is not counted.
///
/// A sum that is more than the file can hold is refused when the line is written.
void updateTeamRecord(TeamRecord& record, const GameSheet& game, Side side, bool overtime,
                      RecordHolder holder);

/// Adds a result letter to a run: the same letter lengthens it, another begins a new one. A tie is a letter
/// like the others.
void updateStreak(Streak& streak, const std::string& result);

} // namespace iceline
