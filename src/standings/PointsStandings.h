#pragma once

#include "standings/Alignment.h"

#include <string>

namespace iceline {

class Files;

/// A team's row in the standings of its division or conference.
struct PointsRow {
    TeamIndex team;
    TeamStanding figures;
    std::string mark; ///< clinched: "x" a play-off place, "y" the division, "z" the conference; or ""
};

using DivisionRows = std::array<PointsRow, DivisionTeams>;
using ConferenceRows = std::array<PointsRow, ConferenceTeams>;

/// The figures of the 24 teams, from the beginning of each team's record of the regular season.
LeagueTable readStandingsTable(Files& files);

/// Orders the four divisions by StandingsTable.
void orderDivisions(ApplicationState& state);

/// Seeds both conferences by StandingsTable and the order of the divisions: the division leaders first, by
/// points alone, then the other ten teams by elimination.
void seedConferences(ApplicationState& state);

/// The rows of the four divisions, by Division, with the marks that the teams bear now.
std::array<DivisionRows, Divisions.size()> divisionRows(const ApplicationState& state);

/// The rows of the two conferences, by Conference, with the marks that the teams bear now.
std::array<ConferenceRows, Conferences.size()> conferenceRows(const ApplicationState& state);

} // namespace iceline
