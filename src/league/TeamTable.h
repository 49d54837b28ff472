#pragma once

#include "league/Index.h"

#include <array>
#include <optional>
#include <string_view>

namespace iceline {

/// A team's row in the team table, which is the number by which the game itself knows the team.
using TeamIndex = Index<struct TeamTable>;

/// Rows 0 to 23 are the teams of the league; 24 and 25 are the game's All-Star teams.
inline constexpr int LeagueTeams = 24;

/// Row of the word for all teams.
inline constexpr TeamIndex AllTeams{26};

/// Row of a play-off slot whose team is not yet known.
inline constexpr TeamIndex BlankTeam{30};

/// Full names; the name of a team is also the name of its folder.
inline constexpr std::array<std::string_view, 26> TeamName{
    "Boston Bruins",       "Buffalo Sabres",        "Calgary Flames",      "Chicago Blackhawks",
    "Detroit Red Wings",   "Edmonton Oilers",       "Hartford Whalers",    "Long Island Islanders",
    "Los Angeles Kings",   "Minnesota North Stars", "Montreal Canadiens",  "New Jersey Devils",
    "New York Rangers",    "Ottawa Senators",       "Philadelphia Flyers", "Pittsburgh Penguins",
    "Quebec Nordiques",    "San Jose Sharks",       "St. Louis Blues",     "Tampa Bay Lightning",
    "Toronto Maple Leafs", "Vancouver Canucks",     "Washington Capitals", "Winnipeg Jets",
    "All-Stars East",      "All-Stars West"};

/// Abbreviations: stems of image and page names.
inline constexpr std::array<std::string_view, 31> TeamAbbr{
    "BOS", "BUF", "CGY", "CHI", "DET", "EDM", "HFD", "LI",  "LA",   "MIN", "MTL",
    "NJ",  "NYR", "OTA", "PHI", "PIT", "QUE", "SJ",  "STL", "TB",   "TOR", "VAN",
    "WSH", "WPG", "ASE", "ASW", "ALL", "",    "",    "",    "Blank"};

enum class Division { Adams, Patrick, Norris, Smythe };
enum class Conference { Wales, Campbell };

/// Division of each team: 0 Adams, 1 Patrick, 2 Norris, 3 Smythe.
inline constexpr std::array<int, LeagueTeams> TeamDivision{0, 0, 3, 2, 2, 3, 0, 1, 3, 2, 0, 1,
                                                           1, 0, 1, 1, 0, 3, 2, 2, 2, 3, 1, 3};

/// Conference of each team: 0 Wales (divisions 0 and 1), 1 Campbell (divisions 2 and 3).
inline constexpr std::array<int, LeagueTeams> TeamConference{0, 0, 1, 1, 1, 1, 0, 0, 1, 1, 0, 0,
                                                             0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 0, 1};

inline constexpr bool isLeagueTeam(TeamIndex team) {
    return team.number() >= 0 && team.number() < LeagueTeams;
}

/// The teams of the league, for a loop over them.
inline constexpr FirstRows<TeamIndex> AllLeagueTeams{LeagueTeams};

/// The league's team of that full name, to the letter.
std::optional<TeamIndex> teamByName(std::string_view name);

/// The league's team of that abbreviation, to the letter.
std::optional<TeamIndex> teamByAbbr(std::string_view abbr);

} // namespace iceline
