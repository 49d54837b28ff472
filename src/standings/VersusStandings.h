#pragma once

#include "standings/Alignment.h"
#include "standings/StandingsRows.h"

#include <vector>

namespace iceline {

class Files;

using VersusTable = decltype(ApplicationState::WalesVersus);
using VersusRows = std::array<VersusRow, ConferenceTeams>;

/// Row numbers of a versus table, best first.
using VersusOrder = std::vector<int>;

/// Fills WalesVersus and CampbellVersus from the teams' records of the regular season.
void readVersusTables(Files& files, ApplicationState& state);

/// The order of a versus table by the winning percentage against the teams of `opponents`; equal percentages
/// stand in the order of the team table.
VersusOrder versusOrder(const VersusTable& table, Conference opponents);

/// The rows of a versus table in the given order.
VersusRows versusRows(const VersusTable& table, const VersusOrder& order);

} // namespace iceline
