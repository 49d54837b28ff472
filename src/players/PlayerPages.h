#pragma once

#include "league/TeamTable.h"
#include "shell/Platform.h"
#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

#include <span>
#include <string>

/// The pages of a team in `Profiles` or `PlayoffProfiles`.
namespace iceline {

/// The team's folder in the site: "Profiles/BOS".
std::string profilesFolder(PartOfYear part, TeamIndex team);

/// The rows that rosters and player pages list: those before the first empty row or empty name.
std::span<const RosterRow> listedPlayers(const Roster& roster);

/// The whole text of a team's roster page, the same for both parts of the year.
std::string rosterPage(TeamIndex team, const Roster& roster);

/// The whole text of a player's page. `card` is the picture in PlayerCards without its ending; position and
/// kind of stat line must agree.
std::string playerPage(PartOfYear part, TeamIndex team, const RosterRow& player, const PlayerStatsLine& stats,
                       const std::string& card);

/// Each makes the team's folder when it is missing.
void writeRosterPage(Files& files, PartOfYear part, TeamIndex team);
void writePlayerPages(Files& files, Platform& platform, PartOfYear part, TeamIndex team);

} // namespace iceline
