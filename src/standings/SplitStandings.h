#pragma once

#include "shell/ApplicationState.h"
#include "standings/StandingsRows.h"

#include <array>

namespace iceline {

class Files;

using HomeAwayRows = std::array<HomeAwayRow, LeagueTeams>;

/// The league's standings of home games and of away games, best winning percentage first. Wins alone count,
/// and nothing but the team table, the first team first, tells equal percentages apart.
struct HomeAwayStandings {
    HomeAwayRows home;
    HomeAwayRows away;
};

/// Reads the teams' records of the regular season. HomeAwayTable and HomeAwayOrder take the home figures and
/// then, for good, the away figures.
HomeAwayStandings readHomeAwayStandings(Files& files, ApplicationState& state);

} // namespace iceline
