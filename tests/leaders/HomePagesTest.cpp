#include "LeadersSupport.h"
#include "store/LeagueFiles.h"
#include "support/NumberedRecord.h"
#include "support/Test.h"

#include <algorithm>
#include <utility>

namespace iceline {
namespace {

using namespace test;

/// The lines of a page after the one that holds `head`, up to the end of its table.
std::vector<std::string> rowsAfter(const std::string& page, const std::string& head) {
    const std::vector<std::string> lines = linesOf(page);
    const auto isHead = [&](const std::string& line) { return line.ends_with(">" + head + "</th></tr>"); };
    auto line = std::ranges::find_if(lines, isHead);
    EXPECT_NE(line, lines.end()) << head;
    std::vector<std::string> rows;
    while (line != lines.end() && ++line != lines.end() && !line->starts_with("</table>"))
        rows.push_back(*line);
    return rows;
}

TEST(LeagueHomePage, OfAnEmptyLeagueHoldsHeadsAlone) {
    TestLeague league;
    publishRankings(league);

    const std::vector<std::string> lines = linesOf(league.page("index.htm"));
    ASSERT_GT(lines.size(), 9u);
    EXPECT_EQ(lines[0], "<html><head><title>Rinkstar - League Home Page</title><link rel=\"stylesheet\" "
                        "href=\"./styles.css\" type =\"Text/css\"></head>");
    EXPECT_EQ(lines[1], "<body link = BLACK vlink = BLACK alink = RED><font face = arial size = 2><center>");
    std::vector<std::string> expected{
        "<br/><br/><table><tr><td><img src=\"./Headers/Iceline-Logo.gif\"></img></p></td><td>",
        "<table border = 1><tr><th colspan = 6>Last 10 Game Results</th></tr>",
        "<tr><td colspan=6>No Games</td></tr>",
        "</table></td></tr></table><br/><br/>",
        "<table border = 1><tr><th colspan = 4>Three Star Points Leaders</th></tr>",
    };
    const auto expectBlocks = [&expected](const std::string& title, const std::vector<std::string>& heads) {
        std::string before = "</table></td></tr></table><table border=1><tr><th colspan = 10>" + title +
                             "</th></tr><tr></font></center>";
        for (const std::string& head : heads) {
            expected.push_back(std::exchange(before, "</table></td><td></td></font></center>"));
            expected.push_back("<td><table border = 1><tr><th colspan = 4" + head + "</th></tr>");
        }
    };
    expectBlocks("Player League Leaders",
                 {">Points", ">Goals", ">Assists", ">Shots on Goal", ">Penalty Minutes"});
    expectBlocks("Goalie League Leaders",
                 {">Goals Against Average", ">Wins", ">Save Percentage", ">Shutouts", ">Goals Allowed"});
    expectBlocks("Team Leaders", {" width = 100%>Power Ranking", ">Points", ">Win Percentage",
                                  ">Goals Per Game", ">SOG Per Game"});
    expected.insert(expected.end(), {"</table></td></tr></font></center>", "</table></body></html>"});
    EXPECT_EQ(std::vector(lines.begin() + 3, lines.end()), expected);
}

TEST(LeagueHomePage, ListsTheLastGamesWithTheAwayTeamFirst) {
    TestLeague league;
    league.files.files["Last 10 Box.txt"] = textOf(std::vector<RecentGame>{
        {Montreal, Boston, 2, 3, "Newest.htm"}, {Buffalo, Montreal, 1, 0, "Older.htm"}});

    publishRankings(league);

    const auto rows = rowsAfter(league.page("index.htm"), "Last 10 Game Results");
    EXPECT_THAT(rows,
                ElementsAre("<tr><td><img src=\"./LogoMinis/BOS.gif\"></img></td><td><b>3</b></td><td> vs. "
                            "</td><td><img src=\"./LogoMinis/MTL.gif\"></img></td><td><b>2</b></td><td><a "
                            "href=\"./BoxScores/Newest.htm\"><b> BOX </b></a></td></tr>",
                            HasSubstr("Older.htm")));
}

TEST(LeagueHomePage, EachBlockShowsTheFigureOfItsHead) {
    TestLeague league;
    setSkater(league, Boston, 2, "Jo Skate", numberedRecord<SkaterStats>());
    setGoalie(league, Buffalo, 0, "Al Masque", numberedRecord<GoalieStats>());
    league.setRecord(Montreal, PartOfYear::Season, numberedRecord<TeamRecord>());

    publishRankings(league);

    const std::string page = league.page("index.htm");
    const std::string teams = page.substr(page.find("Team Leaders"));
    const auto figureUnder = [](const std::string& text, const std::string& head) {
        const std::string row = rowsAfter(text, head).at(1);
        const std::size_t begin = row.rfind("<center>") + std::string("<center>").size();
        return row.substr(begin, row.find("</td>", begin) - begin);
    };
    std::vector<std::string> shown;
    for (const char* head : {"Points", "Goals", "Assists", "Shots on Goal", "Penalty Minutes",
                             "Goals Against Average", "Wins", "Save Percentage", "Shutouts", "Goals Allowed"})
        shown.push_back(figureUnder(page, head));
    for (const char* head : {"Power Ranking", "Points", "Win Percentage", "Goals Per Game", "SOG Per Game"})
        shown.push_back(figureUnder(teams, head));
    EXPECT_THAT(shown, ElementsAre("6", "2", "4", "8", "11", "9.5", "5", "10.5", "3", "2", "12.5", "4", "5.5",
                                   "1.17", "46.5"));
}

TEST(LeagueHomePage, PlayerBlocksHoldFiveRowsUnderTheLeadersPicture) {
    TestLeague league;
    for (int row = 2; row < 9; ++row)
        setSkater(league, Montreal, row, "Skater " + std::to_string(row), {.GP = 1, .Pts = row});
    setSkater(league, Boston, 2, "Jo Card", {.GP = 1, .G = 4});
    league.files.files["IcelineWebPages/PlayerCards/Jo Card.gif"] = "GIF";
    league.platform.randomNumber = 0.5;

    publishRankings(league);

    const auto points = rowsAfter(league.page("index.htm"), "Points");
    ASSERT_EQ(points.size(), 6u);
    EXPECT_EQ(points[0], "<tr><td colspan = 4><center><img src=\"./PlayerCards/Skater2.gif\"></img></center>"
                         "</td></tr>");
    EXPECT_EQ(points[1],
              "<tr><td><center><b>1</b></center></td><td><center><img "
              "src=\"./LogoMinis/MTL.gif\"></center></td><td>Skater 8</td><td><center>8</td></tr>");
    EXPECT_THAT(points[5], HasSubstr("<b>5</b>"));
    const auto goals = rowsAfter(league.page("index.htm"), "Goals");
    EXPECT_EQ(goals.at(0),
              "<tr><td colspan = 4><center><img src=\"./PlayerCards/Jo Card.gif\"></center></td></tr>");
}

TEST(LeagueHomePage, AverageHasTheLowestFirstAndGoaliesShareOneDefaultPicture) {
    TestLeague league;
    GoalieStats tight{.GP = 2, .GA = 1};
    tight.GAA = 0.5;
    GoalieStats leaky{.GP = 2, .GA = 9};
    leaky.GAA = 4.5;
    leaky.SvPct = 0.5;
    setGoalie(league, Boston, 0, "Leaky", leaky);
    setGoalie(league, Montreal, 0, "Tight", tight);
    league.files.files["IcelineWebPages/PlayerCards/Leaky.gif"] = "GIF";
    league.platform.randomNumber = 0.99;

    publishRankings(league);

    const std::string page = league.page("index.htm");
    EXPECT_THAT(rowsAfter(page, "Goals Against Average"),
                ElementsAre("<tr><td colspan = 4><center><img src=\"./PlayerCards/Goalie1.gif\"></img>"
                            "</center></td></tr>",
                            HasSubstr("Tight</td><td><center>0.5</td></tr>"), HasSubstr("Leaky")));
    EXPECT_THAT(rowsAfter(page, "Goals Allowed"),
                ElementsAre("<tr><td colspan = 4><img src=\"./PlayerCards/Leaky.gif\"></img></td>",
                            HasSubstr("Leaky</td><td><center>9</td></tr>"), HasSubstr("Tight")));
    EXPECT_THAT(rowsAfter(page, "Save Percentage").at(1), HasSubstr("<center>0.5</td></tr>"));
}

TEST(LeagueHomePage, AStarIsShownByHisCardOrAsASkater) {
    TestLeague league;
    setGoalie(league, Boston, 0, "../Star", {.GP = 1, .StarPoints = 15});

    publishRankings(league);

    EXPECT_THAT(rowsAfter(league.page("index.htm"), "Three Star Points Leaders"),
                ElementsAre("<tr><td colspan = 4><center><img src=\"./PlayerCards/Skater1.gif\"></img>"
                            "</center></td></tr>",
                            "<tr><td><center><b>1</b></center></td><td><center><img "
                            "src=\"./LogoMinis/BOS.gif\"></center></td><td>../Star</td><td><center>15</td>"
                            "</tr>"));
}

TEST(LeagueHomePage, TeamBlocksBeginWithABannerUnlessTheFirstTurnGaveNoRow) {
    TestLeague league;
    TeamRecord loser = teamRecord(3, 0, 2);
    loser.PowerRanking = -4.5;
    loser.WinPercent = 0.125;
    league.setRecord(Montreal, PartOfYear::Season, loser);

    publishRankings(league);

    // By power ranking the first five turns go to teams without games, whose ranking of 0 is higher.
    const std::string page = league.page("index.htm");
    EXPECT_THAT(rowsAfter(page, "Power Ranking"), IsEmpty());
    EXPECT_THAT(rowsAfter(page, "Win Percentage"),
                ElementsAre("<tr><td colspan = 4><center><img src=\"./BannerMinis/MTL.gif\"></center></td>"
                            "</tr>",
                            "<tr><td><center><b>1</b></center></td><td><center><img "
                            "src=\"./LogoMinis/MTL.gif\"></center></td><td><center>0.125</td></tr>"));

    for (TeamIndex team = Buffalo; team < LeagueTeams; ++team)
        league.setRecord(team, PartOfYear::Season, loser);
    publishRankings(league);
    const auto rows = rowsAfter(league.page("index.htm"), "Power Ranking");
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_THAT(rows[0], HasSubstr("<b>1</b></center></td><td><center><img src=\"./LogoMinis/BUF.gif\">"));
    EXPECT_THAT(rows[0], HasSubstr("<td><center>-4.5</td></tr>"));
}

TEST(PlayoffHomePage, OpensWithoutTheRootTagAndWithALinkList) {
    TestLeague league;
    league.files.files["Last 10 Box.txt"] =
        textOf(std::vector<RecentGame>{{Montreal, Boston, 2, 3, "Newest.htm"}});

    publishRankings(league, PartOfYear::Playoffs);

    const std::vector<std::string> lines = linesOf(league.page("Playoffs.htm"));
    EXPECT_THAT(lines[0], StartsWith("<head><title>Rinkstar - Playoffs</title>"));
    EXPECT_EQ(lines[3], "<br/><br/><p><img src=\"Headers/Playoffs.gif\"></img></p><br/><br/>");
    EXPECT_EQ(lines[4], "<p><a href=\"./PlayoffTree.htm\"><b>Playoff Tree</b></a></p>");
    EXPECT_EQ(lines[8], "<p><a href=\"./PlayoffAllTimeRecords.htm\"><b>Playoff All-Time Records</b></a></p>");
    EXPECT_EQ(lines[9], "<br/><br/>");
    EXPECT_EQ(lines[10], "<table border = 1><tr><th colspan = 4>Three Star Points Leaders</th></tr>");
    EXPECT_EQ(lines.back(), "</table></body></html>");
}

} // namespace
} // namespace iceline
