#pragma once

#include "standings/StandingsTable.h"

#include <vector>

namespace iceline {

/// The best of `candidates`, of which there is at least one and which stand in the order of the team table.
///
/// Five stages, each of which keeps the teams level on the best value of its key, the higher the better:
/// points, wins, power ranking, goal difference a game, goals for. Teams level on all five go by the team
/// table, the last first.
///
/// A negative value never qualifies. Where all are negative the keys behind that one decide nothing: without
/// a goal difference that qualifies the choice is the first of the teams that the power ranking kept, and
/// without a power ranking or wins that qualify the first of those that the points kept, again by the team
/// table, the last first.
TeamIndex bestByElimination(const StandingsTable& table, const std::vector<TeamIndex>& candidates);

/// All candidates, best first, by repeated elimination.
std::vector<TeamIndex> eliminationOrder(const StandingsTable& table, std::vector<TeamIndex> candidates);

} // namespace iceline
