#pragma once

#include "league/LeagueTable.h"

#include <vector>

namespace iceline {

/// The best of `candidates`, of which there is at least one and which are in the order of the team table.
///
/// Three filters, one after the other, leave the teams that are level on the best values of their keys, the
/// higher the better: points; wins, then power ranking; goal difference a game, then goals for. Of the teams
/// that are left the last in the team table is the best.
///
/// A negative value never qualifies. A filter whose keys nobody qualifies for leaves the choice to the one
/// before it: the last in the team table of the teams that that one left, whatever their other keys.
TeamIndex bestByElimination(const LeagueTable& table, const std::vector<TeamIndex>& candidates);

/// All candidates, best first, by repeated elimination.
std::vector<TeamIndex> eliminationOrder(const LeagueTable& table, std::vector<TeamIndex> candidates);

} // namespace iceline
