#pragma once

#include "shell/TeamTable.h"

#include <array>
#include <string>

namespace iceline {

/// A team's row in the standings of its division or conference.
struct StandingsRow {
    TeamIndex team = 0;
    int wins = 0;
    int losses = 0;
    int ties = 0;
    int points = 0;
    int GP = 0;
    int GF = 0;
    int GA = 0;
    std::string mark; ///< clinched: "x" a play-off place, "y" the division, "z" the conference; or ""
};

/// Wins, losses, ties, and wins per game in thousandths.
struct SplitRecord {
    int wins = 0;
    int losses = 0;
    int ties = 0;
    int winPercent = 0;
};

/// A team's row in the standings of home games or of away games.
struct HomeAwayRow {
    TeamIndex team = 0;
    SplitRecord record;
    int GP = 0;
};

/// A team's records against the teams of either conference, by Conference.
struct VersusRow {
    TeamIndex team = 0;
    std::array<SplitRecord, 2> against;
};

} // namespace iceline
