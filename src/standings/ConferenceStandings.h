#pragma once

#include "standings/Alignment.h"
#include "standings/StandingsRows.h"

namespace iceline {

using ConferenceRows = std::array<StandingsRow, ConferenceTeams>;

/// Seeds both conferences by StandingsTable and the order of the divisions: the division leaders first, by
/// points alone, then the other ten teams by elimination.
void seedConferences(ApplicationState& state);

/// The rows of the two conferences, by Conference.
std::array<ConferenceRows, 2> conferenceRows(const ApplicationState& state);

} // namespace iceline
