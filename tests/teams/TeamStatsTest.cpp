#include "teams/TeamStats.h"

#include "files/FileError.h"
#include "support/NumberedRecord.h"
#include "support/Test.h"
#include "support/TestLeague.h"
#include "teams/TeamFigures.h"

namespace iceline::test {

namespace {

std::string lastTen(const TeamStats& window) {
    return teamfigures::LastTenGames.text(*window.content());
}

/// The row of heads and the row of figures of a table with these columns.
std::string tableRows(const std::vector<std::pair<std::string, std::string>>& columns) {
    std::string heads = "<tr>";
    std::string cells;
    for (const auto& [head, figure] : columns) {
        heads += "<th><b>" + head + "</b></th>";
        cells += (cells.empty() ? "<tr><td><center>" : "</center></td><td><center>") + figure;
    }
    return heads + "</tr>\r\n" + cells + "</center></td></tr>\r\n";
}

void choose(TeamStats& window, TeamIndex team) {
    window.TeamSelect = team.number();
    window.TeamSelect_Click();
}

TeamStats& open(TestLeague& league, WindowId id = WindowId::TeamStats) {
    return static_cast<TeamStats&>(league.app.windows().use(id));
}

TEST(TeamStats, ShowsAnUntouchedTeamWithZeros) {
    TestLeague league;
    TeamStats& window = open(league);
    window.TeamSelect_Click();
    EXPECT_FALSE(window.content()) << "the prompt of the list is no team";

    choose(window, Boston);
    const TeamView& view = *window.content();
    EXPECT_EQ(teamfigures::Record[0].text(view), "0 - 0 - 0");
    EXPECT_EQ(teamfigures::CurrentStreak.text(view), " 0");
    EXPECT_EQ(teamfigures::FurtherAverages[1].text(view), "0");
    EXPECT_EQ(teamfigures::Crowd[0].text(view), "80");
    EXPECT_EQ(teamfigures::Crowd[1].text(view), "80");
}

TEST(TeamStats, CountsTheLinesAfterAllButTenGamesAtMostTen) {
    struct Case {
        int games;
        const char* results;
        const char* shown;
    };
    for (const Case& each : {Case{3, "WLT", "1 - 1 - 1"}, Case{10, "WWWWWLLLLT", "5 - 4 - 1"},
                             Case{12, "WWLLLLLLLLLT", "0 - 9 - 1"}, Case{3, "WL", "1 - 1 - 0"},
                             Case{2, "WLLLLLLLLTWWW", "1 - 8 - 1"}, Case{12, "WWLT", "0 - 1 - 1"}}) {
        TestLeague league;
        TeamRecord record;
        record.GameCount = each.games;
        league.setRecord(Boston, PartOfYear::Season, record);
        league.setResults(Boston, PartOfYear::Season, each.results);
        TeamStats& window = open(league);
        choose(window, Boston);
        choose(window, Boston);
        EXPECT_EQ(lastTen(window), each.shown) << each.results;
    }
}

TEST(TeamStats, RefusesAResultListWithoutTheLinesToSkip) {
    TestLeague league;
    TeamRecord record;
    record.GameCount = 13;
    league.setRecord(Boston, PartOfYear::Season, record);
    league.setResults(Boston, PartOfYear::Season, "WL");
    TeamStats& window = open(league);
    EXPECT_THROW(choose(window, Boston), FileError);
}

TEST(TeamStats, EveryFigureIsUnderItsHeadingOnThePage) {
    TeamView view;
    view.record = numberedRecord<TeamRecord>();
    view.record.AttZonePG = "1:34";
    view.streak = {"L", 201};
    view.lastTen = {202, 203, 204};
    view.LeagueMeter = 205;
    const std::string season = teamTables(view, CrowdColumns::No);
    std::vector<std::pair<std::string, std::string>> record{{"W - L - T", "1 - 2 - 3"},
                                                            {"Pts.", "4"},
                                                            {"Win%", "5.5"},
                                                            {"GP", "6"},
                                                            {"GF", "7"},
                                                            {"GA", "8"},
                                                            {"GFA", "9.5"},
                                                            {"GAA", "10.5"},
                                                            {"Diff", "11.5"},
                                                            {"Pow.Rank", "12.5"},
                                                            {"Streak", "L201"},
                                                            {"Last 10", "202 - 203 - 204"}};
    EXPECT_THAT(season, testing::StartsWith("<table border = 1>" + tableRows(record) + "</table>\r\n"));
    EXPECT_THAT(season,
                HasSubstr("<tr><th colspan = 3>Overtime Stats</th></tr>" +
                          tableRows({{"W - L - T", "40 - 41 - 42"}, {"Win%", "43.5"}, {"GP", "44"}})));
    EXPECT_THAT(season, HasSubstr("<tr><th colspan = 9>Home Stats</th></tr>" +
                                  tableRows({{"W - L - T", "15 - 16 - 17"},
                                             {"Win%", "19.5"},
                                             {"GP", "18"},
                                             {"GF", "20"},
                                             {"GA", "21"},
                                             {"GFA", "22.5"},
                                             {"GAA", "23.5"},
                                             {"Diff", "24.5"},
                                             {"Pow.Rank", "25.5"}})));
    EXPECT_THAT(season, HasSubstr("<tr><th colspan = 9>Away Stats</th></tr>" +
                                  tableRows({{"W - L - T", "26 - 27 - 28"},
                                             {"Win%", "30.5"},
                                             {"GP", "29"},
                                             {"GF", "31"},
                                             {"GA", "32"},
                                             {"GFA", "33.5"},
                                             {"GAA", "34.5"},
                                             {"Diff", "35.5"},
                                             {"Pow.Rank", "36.5"}})));
    EXPECT_THAT(season, HasSubstr("<tr><th colspan = 21>Season Totals</th></tr>" +
                                  tableRows({{"SOG", "45"},
                                             {"S%", "49.5"},
                                             {"SOGA", "47"},
                                             {"PPG/PPA", "50 / 52"},
                                             {"PP%", "54.5"},
                                             {"Pen/PIM", "60 / 62.5"},
                                             {"PenA/PIMA", "64.5 / 66.5"}}) +
                                  "</table>\r\n<table border = 1>" +
                                  tableRows({{"PKG/PKO", "68 / 70"},
                                             {"PK%", "72.5"},
                                             {"FOW/FOT", "95 / 97"},
                                             {"FOW%", "99.5"},
                                             {"ByCks", "100"},
                                             {"PsC/PsA", "102 / 104"},
                                             {"PsAcc%", "106.5"}})));
    EXPECT_THAT(season, HasSubstr("<tr><th colspan = 21>Season Averages</th></tr>" +
                                  tableRows({{"SOG", "46.5"},
                                             {"SOGA", "48.5"},
                                             {"PPG/PPA", "51.5 / 53.5"},
                                             {"Pen/PIM", "61.5 / 63.5"},
                                             {"PenA/PIMA", "65.5 / 67.5"}}) +
                                  "</table>\r\n<table border = 1>" +
                                  tableRows({{"PKG/PKO", "69.5 / 71.5"},
                                             {"Att.Zone", "1:34"},
                                             {"FOW/FOT", "96.5 / 98.5"},
                                             {"ByCks", "101.5"},
                                             {"PsC/PsA", "103.5 / 105.5"}})));

    record.insert(record.end(), {{"Arena dB Rec.", "107.5"}, {"League dB Rec.", "205"}});
    EXPECT_THAT(teamTables(view, CrowdColumns::Yes), HasSubstr(tableRows(record)));
}

TEST(TeamStats, WritesAPageForEveryTeamOnlyWhilePagesAreMade) {
    TestLeague league;
    choose(open(league), Boston);
    EXPECT_FALSE(league.files.isFile("IcelineWebPages/TStats/BOS.htm"));
    league.app.windows().unloadAll();

    TeamRecord record;
    record.Wins = 7;
    record.Losses = 5;
    record.WinPercent = 0.583;
    record.Diff = -0.25;
    record.ArenaMeter = 97;
    league.setRecord(StLouis, PartOfYear::Season, record);
    league.setRecord(StLouis, PartOfYear::Playoffs, record);
    league.setStreak(StLouis, PartOfYear::Season, {"L", 1});
    league.app.state.ShowWindows = false;
    open(league);
    const std::string page = league.page("TStats/STL.htm");
    EXPECT_THAT(page, HasSubstr("<title> Rinkstar - Team Stats</title>"));
    EXPECT_THAT(page, HasSubstr("href=\"../styles.css\""));
    EXPECT_THAT(
        page,
        HasSubstr(
            "<br/><p><img src=\"../Headers/TeamStats.gif\"></img></p><br/><br/>\r\n<p><a href=\"./BOS.htm\">"
            "<img src=\"../LogoMinis/BOS.gif\"></img></a><a href=\"./BUF.htm\">"));
    EXPECT_THAT(
        page,
        HasSubstr(
            "MTL.gif\"></img></a><a href=\"./NJ.htm\"><img src=\"../LogoMinis/NJ.gif\"></img></a></p>\r\n"
            "<p><a href=\"./NYR.htm\">"));
    EXPECT_THAT(page, HasSubstr("<tr><td><center>7 - 5 - 0</center></td><td><center>0</center></td><td>"
                                "<center>0.583</center></td>"));
    EXPECT_THAT(page, HasSubstr("<td><center>-0.25</center></td>"));
    EXPECT_TRUE(page.ends_with("</table><BR><BR></font></center></body></html>\r\n"));

    open(league, WindowId::PlayoffTeamStats);
    const std::string playoffs = league.page("PlayoffTStats/STL.htm");
    EXPECT_THAT(playoffs, HasSubstr("<title> Rinkstar - Playoff Team Stats</title>"));
    EXPECT_THAT(playoffs, HasSubstr("<td><center>97</center></td><td><center>80</center></td></tr>"));
    EXPECT_THAT(playoffs, HasSubstr("<td><center>0</center></td><td><center>0 - 0 - 0</center></td>"))
        << "before any game the streak is a bare 0";
    EXPECT_EQ(league.files.filesIn("IcelineWebPages/TStats").size(), 24U);
}

} // namespace

} // namespace iceline::test
