#pragma once

#include "standings/PointsStandings.h"
#include "standings/SplitStandings.h"

namespace iceline {

/// Writes `DivisionStandings.htm`.
void writeDivisionStandings(Files& files, const std::array<DivisionRows, Divisions.size()>& divisions);

/// Writes `ConferenceStandings.htm`.
void writeConferenceStandings(Files& files,
                              const std::array<ConferenceRows, Conferences.size()>& conferences);

/// Writes `HomeAwayStandings.htm`.
void writeHomeAwayStandings(Files& files, const HomeAwayStandings& standings);

/// Writes `vsConfStandings.htm`: two rankings of each conference side by side, so that a row can hold two
/// teams. Left is the one by the record against the own conference, right the one against the other. Takes
/// the rows by Conference, in the order of the team table.
void writeVersusStandings(Files& files, const std::array<VersusRows, Conferences.size()>& conferences);

} // namespace iceline
