#include "standings/StandingsPages.h"

#include "standings/StandingsSupport.h"
#include "store/LeaguePaths.h"
#include "support/MemoryFiles.h"
#include "support/Test.h"

#include <span>

namespace iceline::test {
namespace {

const std::string Bar =
    R"(<p><a href="./index.htm"><b> Home</b></a> | <a href="./BoxScores.htm"><b> Box Scores</b></a> | )"
    R"(<a href="./PlayerStats.htm"><b> Player Stats</b></a> | )"
    R"(<a href="./TeamStats.htm"><b> Team Stats</b></a> | )"
    R"(<a href="./Standings.htm"><b> Standings</b></a> | )"
    R"(<a href="./LeagueLeaders.htm"><b>  League Leaders</b></a> | )"
    R"(<a href="./CoachingStats.htm"><b>  Coaching Stats</b></a> | )"
    R"(<a href="./PlayerProfiles.htm"><b>  Player Profiles</b></a> | )"
    R"(<a href="./AllTimeRecords.htm"><b>  All-Time Records</b></a> | )"
    R"(<a href="./Playoffs.htm"><b>  Playoffs</b></a></p>)";

const std::string PointsHeads =
    "<tr><th></th><th></th><th><b>Team</b></th><th><b>W</b></th><th><b>L</b></th><th><b>T</b></th>"
    "<th><b>Pts.</b></th><th><b>GF</b></th><th><b>GA</b></th><th><b>GP</b></th></tr>";

const std::string TableStart = "<table cellpadding = 2 border = 1>";

std::vector<std::string> part(const std::vector<std::string>& lines, std::size_t first, std::size_t count) {
    const auto part = std::span(lines).subspan(first, count);
    return {part.begin(), part.end()};
}

std::string spanning(int columns, const std::string& title) {
    return "<tr><th colspan = " + std::to_string(columns) + "><b>" + title + "</b></th></tr>";
}

/// The lines of a page as it is written to the site.
template <class Content>
std::vector<std::string> written(const std::string& page, void (*write)(Files&, const Content&),
                                 const Content& content) {
    MemoryFiles files;
    files.folders.insert(paths::WebRoot);
    write(files, content);
    return linesOf(files.read(paths::page(page)));
}

/// Boston has clinched; everybody has 41 wins, 30 losses and 9 ties.
PointsRow standing(TeamIndex team) {
    return {team,
            {.Wins = 41, .Losses = 30, .Ties = 9, .Points = 91, .GP = 80, .GF = 250, .GA = 240},
            TeamAbbr[team] == "BOS" ? "y" : ""};
}

TEST(StandingsPages, DivisionStandings) {
    std::array<DivisionRows, 4> divisions;
    for (std::size_t i = 0; i < divisions.size(); ++i)
        std::ranges::transform(teamsOf(static_cast<Division>(i)), divisions[i].begin(), standing);
    const auto lines = written("DivisionStandings.htm", writeDivisionStandings, divisions);
    ASSERT_EQ(lines.size(), 4u + 11 + 10 + 11 + 10);
    EXPECT_THAT(
        part(lines, 0, 10),
        ElementsAre(
            R"(<html><head><title>Rinkstar - Division Standings</title><link rel="stylesheet" )"
            R"(href="./styles.css" type ="Text/css"></head>)",
            "<body link = BLACK vlink = BLACK alink = RED><font face =arial size=2><center>", Bar,
            R"(<img src="./Headers/DivisionStandings.gif"></img><br/><br/>)", TableStart,
            spanning(10, "Wales Conference"), spanning(10, "Adams Division"), PointsHeads,
            R"(<tr><td><b>y</b></td><td><center><img src="./LogoMinis/BOS.gif"></img></center></td>)"
            R"(<td><a href="./PStats/index.php?team=BOS"><b>BOS </b></a></center></td><td><center>41)"
            R"(</center></td><td><center>30</center></td><td><center>9</center></td><td><center>91)"
            R"(</center></td><td><center>250</center></td><td><center>240</center></td><td><center>80)"
            R"(</center></td></tr>)",
            StartsWith(R"(<tr><td><b></b></td><td><center><img src="./LogoMinis/BUF.gif">)")));
    EXPECT_THAT(part(lines, 14, 4),
                ElementsAre("</table><BR>", TableStart, spanning(10, "Patrick Division"), PointsHeads));
    EXPECT_THAT(part(lines, 24, 4),
                ElementsAre("</td></tr></table></tr></table><br/><br/><br/>", TableStart,
                            spanning(10, "Campbell Conference"), spanning(10, "Norris Division")));
    EXPECT_THAT(part(lines, 35, 5),
                ElementsAre("</table><br/>", TableStart, spanning(10, "Smythe Division"), PointsHeads,
                            HasSubstr("<b>CGY </b></a></center></td></td><td><center>41</center></td>")));
    EXPECT_EQ(lines.back(), "</table><br/></br>");
}

TEST(StandingsPages, ConferenceStandings) {
    std::array<ConferenceRows, 2> conferences;
    for (std::size_t i = 0; i < conferences.size(); ++i)
        std::ranges::transform(teamsOf(static_cast<Conference>(i)), conferences[i].begin(), standing);
    const auto lines = written("ConferenceStandings.htm", writeConferenceStandings, conferences);
    ASSERT_EQ(lines.size(), 4u + 2 * 16);
    EXPECT_THAT(
        part(lines, 0, 8),
        ElementsAre(R"(<html><head><title>Rinkstar - Conference Standings</title><link rel="stylesheet" )"
                    R"(href="styles.css" type ="Text/css"></head>)",
                    "<body link = BLACK vlink = BLACK alink = RED><font face = arial><center><font size=2>",
                    Bar, R"(<img src="./Headers/ConferenceStandings.gif"></img><br/><br/>)", TableStart,
                    spanning(10, "Wales Conference"), PointsHeads,
                    R"(<tr><center><td><b>y</b></td><td><center><img src="./LogoMinis/BOS.gif"></img>)"
                    R"(</center></td><td><a href="./PStats/index.php?team=BOS"><b>BOS </b></a></center>)"
                    R"(</td><td><center>41</td><td><center>30</td><td><center>9</td><td><center>91</td>)"
                    R"(<td><center>250</td><td><center>240</td><td><center>80</td></center></tr>)"));
    EXPECT_THAT(part(lines, 19, 3),
                ElementsAre("</table><br/></br>", TableStart, spanning(10, "Campbell Conference")));
    EXPECT_EQ(lines.back(), "</table><br/></br>");
}

TEST(StandingsPages, HomeAwayStandings) {
    HomeAwayStandings standings;
    for (const TeamIndex team : AllLeagueTeams) {
        standings.home[team] = {team, {25, 10, 5, 625, 40}};
        standings.away[team] = {TeamIndex(LeagueTeams - 1 - team.number()), {40, 0, 0, 1000, 40}};
    }
    standings.home.back().record = {0, 9, 1, 0, 10};
    const auto lines = written("HomeAwayStandings.htm", writeHomeAwayStandings, standings);
    ASSERT_EQ(lines.size(), 4u + 2 * 28);
    EXPECT_THAT(
        part(lines, 0, 8),
        ElementsAre(R"(<html><head><title>Iceline - Home / Away Standings</title><link rel="stylesheet" )"
                    R"(href="./styles.css" type ="Text/css"></head>)",
                    "<body link = BLACK vlink = BLACK alink = RED><font face = arial><center><font size=2>",
                    Bar, R"(<br/><img src="./Headers/HomeAwayStandings.gif"></img><br/>)", TableStart,
                    spanning(8, "Home Records"),
                    "<tr><th></th><th><b>Team</b></th><th><b>W</b></th><th><b>L</b></th><th><b>T</b></th>"
                    "<th><b>Win%</b></th><th><b>GP</b></th></tr>",
                    R"(<tr><td><center><img src="./LogoMinis/BOS.gif"></img></center></td><td><a href=)"
                    R"("./PStats/index.php?team=BOS"><b>BOS </b></a></center></td><td><center>25</td><td>)"
                    R"(<center>10</td><td><center>5</td><td><center> .625 </td><td><center>40</center>)"
                    R"(</td></tr>)"));
    EXPECT_THAT(part(lines, 30, 4), ElementsAre(HasSubstr("<td><center> 0 </td>"), "</table><br/></br>",
                                                TableStart, spanning(8, "Away Records")));
    EXPECT_THAT(lines[35], testing::AllOf(HasSubstr("LogoMinis/WPG.gif"), HasSubstr("<center> 1 </td>")));
    EXPECT_EQ(lines.back(), "</table><br/></br>");
}

/// A conference whose first team leads it against Wales, and whose last against Campbell.
VersusRows versus(Conference conference) {
    VersusRows rows;
    std::ranges::transform(teamsOf(conference), rows.begin(), [](TeamIndex team) {
        return VersusRow{team, {}};
    });
    rows.front().against = {{{12, 3, 1, 750, 16}, {4, 8, 2, 286, 14}}};
    rows.back().against = {{{1, 5, 0, 167, 6}, {7, 6, 9, 318, 22}}};
    return rows;
}

TEST(StandingsPages, VersusStandings) {
    const std::array conferences{versus(Conference::Wales), versus(Conference::Campbell)};
    const auto lines = written("vsConfStandings.htm", writeVersusStandings, conferences);
    ASSERT_EQ(lines.size(), 4u + 2 * 17);
    const std::string heads = "<th></th><th><b>Team</b></th><th><b>W</b></th><th><b>L</b></th>"
                              "<th><b>T</b></th><th><b>Win%</b></th>";
    EXPECT_THAT(
        part(lines, 0, 9),
        ElementsAre(R"(<html><head><title>Rinkstar - vs. Conf Standings</title><link rel="stylesheet" )"
                    R"(href="./styles.css" type ="Text/css"></head>)",
                    "<body link = BLACK vlink = BLACK alink = RED><font face = arial size = 2><center>", Bar,
                    R"(<br/><img src="./Headers/vsConfStandings.gif"></img><br/>)", TableStart,
                    spanning(17, "Wales Conference"),
                    "<tr><th colspan = 6><b>vs. Wales Conference</b></th>"
                    "<th colspan = 6><b>vs. Campbell Conference</b></th></tr>",
                    "<tr>" + heads + heads + "</tr>",
                    R"(<tr><td><center><img src="./LogoMinis/BOS.gif"></img></center></td><td><a href=)"
                    R"("./PStats/index.php?team=BOS"><b>BOS </b></a></center></td><td><center>12</td><td>)"
                    R"(<center>3</td><td><center>1</td><td><center> .75 </center></td>)"
                    R"(<td><center><img src="./LogoMinis/WSH.gif"></img></center></td><td><a href=)"
                    R"("./PStats/index.php?team=WSH"><b>WSH </b></a></center></td><td><center>7</td><td>)"
                    R"(<center>6</td><td><center>9</td><td><center> .318 </center></td></tr>)"));
    EXPECT_THAT(part(lines, 20, 4),
                ElementsAre("</table><br/></br><br/>", TableStart, spanning(17, "Campbell Conference"),
                            "<tr><th colspan = 6><b>vs. Campbell Conference</b></th>"
                            "<th colspan = 6><b>vs. Wales Conference</b></th></tr>"));
    EXPECT_THAT(lines[25], testing::MatchesRegex(".*WPG.gif.* .318 .*CGY.gif.* .75 .*"));
    EXPECT_EQ(lines.back(), "</table></body></html>");
}

} // namespace
} // namespace iceline::test
