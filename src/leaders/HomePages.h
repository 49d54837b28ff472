#pragma once

#include "store/LeagueFiles.h"

#include <array>
#include <string>
#include <string_view>

/// The fixed parts of the two home pages, `index.htm` and `Playoffs.htm`. Between them stand the rows of the
/// leader tables.
namespace iceline {

/// A block of a home page: the five leaders in one figure.
struct HomePageBlock {
    std::string_view head;
    int column = 0; ///< of the leader table
    bool ascending = false;
    std::string_view width = ""; ///< behind the column span of the head
};

/// Five blocks side by side that come from one leader table.
struct HomePageGroup {
    std::string_view head;
    std::array<HomePageBlock, 5> blocks;
};

/// Players, goalies and teams, in this order.
inline constexpr std::array<HomePageGroup, 3> HomePageGroups{{
    {"Player League Leaders",
     {{{"Points", 2}, {"Goals", 0}, {"Assists", 1}, {"Shots on Goal", 4}, {"Penalty Minutes", 6}}}},
    {"Goalie League Leaders",
     {{{"Goals Against Average", 4, true},
       {"Wins", 1},
       {"Save Percentage", 6},
       {"Shutouts", 5},
       {"Goals Allowed", 8}}}},
    {"Team Leaders",
     {{{"Power Ranking", 9, false, " width = 100%"},
       {"Points", 1},
       {"Win Percentage", 2},
       {"Goals Per Game", 3},
       {"SOG Per Game", 7}}}},
}};

/// Everything before the rows of the three-star leaders. The league's page lists the last games, in the order
/// given.
std::string leagueHomePageOpening(const std::vector<RecentGame>& lastGames);
std::string playoffHomePageOpening();

std::string homePageGroupHead(const HomePageGroup& group);

/// The head of a block of that group, with what parts it from the block before it.
std::string homePageBlockHead(const HomePageGroup& group, const HomePageBlock& block);

std::string homePageEnd();

} // namespace iceline
