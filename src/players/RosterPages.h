#pragma once

#include "league/TeamTable.h"
#include "store/PlayerFiles.h"

#include <span>
#include <string>

namespace iceline {

/// The rows that rosters and player pages list: those before the first empty row or empty name.
std::span<const RosterRow> listedPlayers(const Roster& roster);

/// The whole text of a team's roster page, the same for both parts of the year.
std::string rosterPage(TeamIndex team, const Roster& roster);

} // namespace iceline
