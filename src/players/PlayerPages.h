#pragma once

#include "store/LeaguePaths.h"
#include "store/PlayerFiles.h"

#include <string>

namespace iceline {

/// The whole text of a player's page. `card` is the picture in PlayerCards without its ending; position and
/// kind of stat line must agree.
std::string playerPage(PartOfYear part, TeamIndex team, const RosterRow& player, const PlayerStatsLine& stats,
                       const std::string& card);

} // namespace iceline
