#pragma once

#include "standings/Alignment.h"

#include <array>

namespace iceline {

class Files;

/// A team's record in a part of its games of the regular season.
struct SplitRecord {
    int Wins = 0;
    int Losses = 0;
    int Ties = 0;
    int WinPercent = 0; ///< wins a game, in thousandths
    int GP = 0;

    friend bool operator==(const SplitRecord&, const SplitRecord&) = default;
};

/// A team's row in the standings of home games or of away games.
struct HomeAwayRow {
    TeamIndex team;
    SplitRecord record;
};

using HomeAwayRows = std::array<HomeAwayRow, LeagueTeams>;

/// The league's standings of home games and of away games, best winning percentage first. Wins alone count,
/// and nothing but the team table, the first team first, tells equal percentages apart.
struct HomeAwayStandings {
    HomeAwayRows home;
    HomeAwayRows away;
};

HomeAwayStandings readHomeAwayStandings(Files& files);

/// A team's records against the teams of either conference, by Conference.
struct VersusRow {
    TeamIndex team;
    std::array<SplitRecord, Conferences.size()> against;

    const SplitRecord& recordAgainst(Conference opponents) const {
        return against[static_cast<std::size_t>(opponents)];
    }
};

/// A row for each team of a conference.
using VersusRows = std::array<VersusRow, ConferenceTeams>;

/// The teams of a conference in the order of the team table.
VersusRows readVersusRows(Files& files, Conference conference);

/// Rows in the order of the team table ranked by the winning percentage against the teams of `opponents`;
/// equal percentages keep their order.
VersusRows ranked(const VersusRows& rows, Conference opponents);

} // namespace iceline
