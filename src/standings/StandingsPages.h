#pragma once

#include "standings/ConferenceStandings.h"
#include "standings/PointsStandings.h"
#include "standings/SplitStandings.h"
#include "standings/VersusStandings.h"

#include <string>

namespace iceline {

/// The whole text of `DivisionStandings.htm`.
std::string divisionStandingsPage(const std::array<DivisionRows, 4>& divisions);

/// The whole text of `ConferenceStandings.htm`.
std::string conferenceStandingsPage(const std::array<ConferenceRows, 2>& conferences);

/// The whole text of `HomeAwayStandings.htm`.
std::string homeAwayStandingsPage(const HomeAwayStandings& standings);

/// A conference's two rankings, side by side on the page: left by the record against the own conference,
/// right by the record against the other. A row of the page can hold two teams.
struct VersusRankings {
    VersusRows againstOwn;
    VersusRows againstOther;
};

/// The whole text of `vsConfStandings.htm`, by Conference.
std::string versusStandingsPage(const std::array<VersusRankings, 2>& conferences);

} // namespace iceline
