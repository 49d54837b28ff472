#pragma once

#include "shell/ApplicationState.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace iceline {

/// A division: its name and where the shared state keeps its order, best team first.
struct DivisionInfo {
    std::string_view name;
    DivisionOrder ApplicationState::*order;
};

/// A conference: its name, where the shared state keeps its order, which is the play-off seeds, and its two
/// divisions. Of division leaders level on points the second division's is placed first.
struct ConferenceInfo {
    std::string_view name;
    ConferenceSeeds ApplicationState::*seeds;
    Division firstDivision;
    Division secondDivision;
};

inline constexpr std::array<DivisionInfo, 4> Divisions{{
    {"Adams", &ApplicationState::AdamsOrder},
    {"Patrick", &ApplicationState::PatrickOrder},
    {"Norris", &ApplicationState::NorrisOrder},
    {"Smythe", &ApplicationState::SmytheOrder},
}};

inline constexpr std::array<ConferenceInfo, 2> Conferences{{
    {"Wales", &ApplicationState::WalesSeeds, Division::Patrick, Division::Adams},
    {"Campbell", &ApplicationState::CampbellSeeds, Division::Norris, Division::Smythe},
}};

constexpr const DivisionInfo& info(Division division) {
    return Divisions[static_cast<std::size_t>(division)];
}

constexpr const ConferenceInfo& info(Conference conference) {
    return Conferences[static_cast<std::size_t>(conference)];
}

constexpr Conference otherConference(Conference conference) {
    return conference == Conference::Wales ? Conference::Campbell : Conference::Wales;
}

/// The teams of a division or of a conference, in the order of the team table.
inline std::vector<TeamIndex> teamsOf(const std::array<int, LeagueTeams>& membership, int number) {
    std::vector<TeamIndex> teams;
    for (const TeamIndex team : AllLeagueTeams)
        if (membership[team] == number)
            teams.push_back(team);
    return teams;
}

inline std::vector<TeamIndex> teamsOf(Division division) {
    return teamsOf(TeamDivision, static_cast<int>(division));
}

inline std::vector<TeamIndex> teamsOf(Conference conference) {
    return teamsOf(TeamConference, static_cast<int>(conference));
}

} // namespace iceline
