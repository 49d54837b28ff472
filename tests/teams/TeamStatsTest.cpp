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

/// A row of the page, its texts separated by bars here and by markup there.
std::string pageRow(const std::string& begin, const std::string& between, const std::string& end,
                    std::string texts) {
    for (std::size_t bar = 0; (bar = texts.find('|', bar)) != std::string::npos;)
        texts.replace(bar, 1, between);
    return "<tr>" + begin + texts + end + "</tr>\r\n";
}

/// The row of heads and the row of figures of a table.
std::string tableRows(const std::string& heads, const std::string& figures) {
    return pageRow("<th><b>", "</b></th><th><b>", "</b></th>", heads) +
           pageRow("<td><center>", "</center></td><td><center>", "</center></td>", figures);
}

std::string titled(int columns, const std::string& title) {
    return "<table border = 1><tr><th colspan = " + std::to_string(columns) + ">" + title + "</th></tr>";
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
    const std::string heads = "W - L - T|Pts.|Win%|GP|GF|GA|GFA|GAA|Diff|Pow.Rank|Streak|Last 10";
    const std::string figures = "1 - 2 - 3|4|5.5|6|7|8|9.5|10.5|11.5|12.5|L201|202 - 203 - 204";
    const std::string end = "</table>\r\n";
    const std::string split = "W - L - T|Win%|GP|GF|GA|GFA|GAA|Diff|Pow.Rank";
    const std::string season =
        end + titled(3, "Overtime Stats") + tableRows("W - L - T|Win%|GP", "40 - 41 - 42|43.5|44") + end +
        titled(9, "Home Stats") + tableRows(split, "15 - 16 - 17|19.5|18|20|21|22.5|23.5|24.5|25.5") + end +
        titled(9, "Away Stats") + tableRows(split, "26 - 27 - 28|30.5|29|31|32|33.5|34.5|35.5|36.5") +
        "</table><BR><BR>\r\n" + titled(21, "Season Totals") +
        tableRows("SOG|S%|SOGA|PPG/PPA|PP%|Pen/PIM|PenA/PIMA",
                  "45|49.5|47|50 / 52|54.5|60 / 62.5|64.5 / 66.5") +
        end + "<table border = 1>" +
        tableRows("PKG/PKO|PK%|FOW/FOT|FOW%|ByCks|PsC/PsA|PsAcc%",
                  "68 / 70|72.5|95 / 97|99.5|100|102 / 104|106.5") +
        "</table><BR>\r\n" + titled(21, "Season Averages") +
        tableRows("SOG|SOGA|PPG/PPA|Pen/PIM|PenA/PIMA", "46.5|48.5|51.5 / 53.5|61.5 / 63.5|65.5 / 67.5") +
        end + "<table border = 1>" +
        tableRows("PKG/PKO|Att.Zone|FOW/FOT|ByCks|PsC/PsA",
                  "69.5 / 71.5|1:34|96.5 / 98.5|101.5|103.5 / 105.5") +
        "</table><BR><BR></font></center></body></html>\r\n";
    EXPECT_EQ(teamTables(view, CrowdColumns::No), "<table border = 1>" + tableRows(heads, figures) + season);
    EXPECT_EQ(teamTables(view, CrowdColumns::Yes),
              "<table border = 1>" +
                  tableRows(heads + "|Arena dB Rec.|League dB Rec.", figures + "|107.5|205") + season);
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
