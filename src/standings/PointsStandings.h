#pragma once

#include "standings/Alignment.h"
#include "standings/StandingsRows.h"

namespace iceline {

using DivisionRows = std::array<StandingsRow, DivisionTeams>;

/// Orders the four divisions by StandingsTable.
void orderDivisions(ApplicationState& state);

/// The rows of the four divisions, by Division.
std::array<DivisionRows, 4> divisionRows(const ApplicationState& state);

} // namespace iceline
