#pragma once

#include "shell/ApplicationState.h"

#include <algorithm>
#include <array>
#include <string>

namespace iceline {

/// A team's row in the standings of its division or conference.
struct StandingsRow {
    TeamIndex team;
    int wins = 0;
    int losses = 0;
    int ties = 0;
    int points = 0;
    int GP = 0;
    int GF = 0;
    int GA = 0;
    std::string mark; ///< clinched: "x" a play-off place, "y" the division, "z" the conference; or ""
};

/// A team's row from StandingsTable, with the mark that it bears now.
StandingsRow standingsRow(const ApplicationState& state, TeamIndex team);

/// The rows of the teams of an order.
template <std::size_t Teams>
std::array<StandingsRow, Teams> standingsRows(const ApplicationState& state,
                                              const std::array<TeamIndex, Teams>& order) {
    std::array<StandingsRow, Teams> rows;
    std::ranges::transform(order, rows.begin(),
                           [&state](TeamIndex team) { return standingsRow(state, team); });
    return rows;
}

/// Wins, losses, ties, and wins per game in thousandths.
struct SplitRecord {
    int wins = 0;
    int losses = 0;
    int ties = 0;
    int winPercent = 0;
};

/// The winning percentage as the window shows it: 625 thousandths are "0.625".
std::string winPercentText(const SplitRecord& record);

/// A team's row in the standings of home games or of away games.
struct HomeAwayRow {
    TeamIndex team;
    SplitRecord record;
    int GP = 0;
};

/// A team's records against the teams of either conference, by Conference.
struct VersusRow {
    TeamIndex team;
    std::array<SplitRecord, 2> against;
};

} // namespace iceline
