#pragma once

#include "shell/ApplicationState.h"

namespace iceline {

/// Season length of a regular season that was ended by hand.
inline constexpr int SeasonEndedByHand = -1;

/// Marks who cannot be caught any more, from StandingsTable, the order of the divisions and the seeds: "x" a
/// play-off place, "y" the division, "z" the first place of the conference; a later mark replaces an earlier
/// one. What a team can still reach counts two points for each game left of SeasonLength; a team that can be
/// equalled has not clinched, except where the season is over for both and a tie-break holds.
///
/// No mark is ever taken away, and none is given when the season was ended by hand.
void markClinched(ApplicationState& state);

} // namespace iceline
