#pragma once

#include "league/TeamTable.h"

#include <array>

namespace iceline {

inline constexpr int DivisionTeams = 6;
inline constexpr int ConferenceTeams = 12;

/// Teams of a conference that go to the play-offs.
inline constexpr int PlayoffPlaces = 8;

/// The teams of a division, best first.
using DivisionOrder = std::array<TeamIndex, DivisionTeams>;

/// The teams of a conference, best first: its play-off seeds.
using ConferenceSeeds = std::array<TeamIndex, ConferenceTeams>;

/// A team's figures in the standings.
struct TeamStanding {
    int Wins = 0;
    int Losses = 0;
    int Ties = 0;
    int Points = 0;
    int GP = 0;
    int GF = 0;
    int GA = 0;
    int Difference = 0;   ///< goal difference a game, to the nearest whole number
    int PowerRanking = 0; ///< in hundredths

    friend bool operator==(const TeamStanding&, const TeamStanding&) = default;
};

using LeagueTable = std::array<TeamStanding, LeagueTeams>;

} // namespace iceline
