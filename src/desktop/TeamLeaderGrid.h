#pragma once

#include "desktop/LeaderGrid.h"

namespace iceline::desktop {

/// The table of the teams' leaders, which the coaches' ranking shares: numbers in Text3, banners in
/// LeagueLeaderTeam3, heads in tmLeadersCol, 24 rows.
LeaderGridForm teamLeaderForm();

} // namespace iceline::desktop
