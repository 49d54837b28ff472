#pragma once

#include "leaders/Rankings.h"
#include "support/Test.h"
#include "support/TestLeague.h"

#include <string>
#include <vector>

namespace iceline::test {

/// Puts a player and his line into a row of a team's roster.
inline void setPlayer(TestLeague& league, TeamIndex team, int row, const RosterRow& player,
                      const PlayerStatsLine& stats, PartOfYear part = PartOfYear::Season) {
    Roster roster = league.roster(team);
    roster.at(RosterIndex(row)) = player;
    league.setRoster(team, roster);
    league.setPlayerStats(team, part, row, stats);
}

inline void setSkater(TestLeague& league, TeamIndex team, int row, const std::string& name,
                      const SkaterStats& stats, PartOfYear part = PartOfYear::Season) {
    setPlayer(league, team, row, {.Name = name, .Number = 9, .Rating = 70, .Position = "F"}, stats, part);
}

inline void setGoalie(TestLeague& league, TeamIndex team, int row, const std::string& name,
                      const GoalieStats& stats, PartOfYear part = PartOfYear::Season) {
    setPlayer(league, team, row, {.Name = name, .Number = 1, .Rating = 70, .Position = "G"}, stats, part);
}

inline TeamRecord teamRecord(int games, int points = 0, int goalsFor = 0, int goalsAgainst = 0) {
    TeamRecord record;
    record.GP = games;
    record.Points = points;
    record.GF = goalsFor;
    record.GA = goalsAgainst;
    return record;
}

/// Loads the window as Generate Webpages does.
inline void publishRankings(TestLeague& league, PartOfYear part = PartOfYear::Season) {
    const WindowId id = part == PartOfYear::Season ? WindowId::Rankings : WindowId::PlayoffRankings;
    league.app.state.ShowWindows = false;
    league.app.windows().use(id);
    league.app.windows().unload(id);
    league.app.state.ShowWindows = true;
}

inline std::vector<std::string> namesOf(const Rankings::Table& table) {
    std::vector<std::string> names;
    for (const LeaderLine& row : table.rows)
        names.push_back(row.name);
    return names;
}

inline std::string abbrsOf(const Rankings::Table& table) {
    std::string abbrs;
    for (const LeaderLine& row : table.rows)
        abbrs.append(abbrs.empty() ? "" : " ").append(TeamAbbr[row.team]);
    return abbrs;
}

} // namespace iceline::test
