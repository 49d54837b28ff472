#pragma once

#include "league/TeamTable.h"
#include "support/Test.h"

#include <string>
#include <string_view>
#include <vector>

namespace iceline::test {

inline TeamIndex team(std::string_view abbr) {
    return teamByAbbr(abbr).value();
}

/// The abbreviations of teams, separated by blanks.
template <class Teams>
std::string abbrs(const Teams& teams) {
    std::string text;
    for (const TeamIndex team : teams)
        text.append(text.empty() ? "" : " ").append(TeamAbbr[team]);
    return text;
}

/// The abbreviations of the teams of rows.
template <class Rows>
std::string teamsOfRows(const Rows& rows) {
    std::vector<TeamIndex> teams;
    for (const auto& row : rows)
        teams.push_back(row.team);
    return abbrs(teams);
}

} // namespace iceline::test
