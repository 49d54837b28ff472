#include "files/FileError.h"
#include "support/TestLeague.h"
#include "teams/TeamStats.h"

#include <gmock/gmock.h>

namespace iceline::test {

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr TeamIndex Boston{0};
constexpr TeamIndex StLouis{18};

std::string shown(const TeamStats& window, std::string_view control) {
    for (const ShownFigure& figure : shownFigures(*window.content()))
        if (figure.name == control)
            return figure.text;
    return "no such control";
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
    EXPECT_EQ(shown(window, "Wins"), "0");
    EXPECT_EQ(shown(window, "Streak"), " 0");
    EXPECT_EQ(shown(window, "AttZonePG"), "0");
    EXPECT_EQ(shown(window, "ArenaMeter"), "80");
    EXPECT_EQ(shown(window, "LeagueMeter"), "80");
}

TEST(TeamStats, CountsTheLastTenAtDisplay) {
    struct Case {
        int games;
        const char* results;
        const char* wins;
        const char* losses;
        const char* ties;
    };
    for (const Case& each : {Case{3, "WLT", "1", "1", "1"}, Case{10, "WWWWWLLLLT", "5", "4", "1"},
                             Case{12, "WWLLLLLLLLLT", "0", "9", "1"}, Case{3, "WL", "1", "1", "0"},
                             Case{2, "WLLLLLLLLTWWW", "1", "8", "1"}, Case{12, "WWLT", "0", "1", "1"}}) {
        TestLeague league;
        TeamRecord record;
        record.GameCount = each.games;
        league.setRecord(Boston, PartOfYear::Season, record);
        league.setResults(Boston, PartOfYear::Season, each.results);
        TeamStats& window = open(league);
        choose(window, Boston);
        choose(window, Boston);
        EXPECT_EQ(shown(window, "L10W"), each.wins) << each.results;
        EXPECT_EQ(shown(window, "L10L"), each.losses) << each.results;
        EXPECT_EQ(shown(window, "L10T"), each.ties) << each.results;
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
    record.PPG = 3;
    record.PPA = 11;
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
    EXPECT_THAT(
        page,
        HasSubstr("<tr><td><center>7 - 5 - 0</center></td><td><center>0</center></td><td><center>0.583"));
    EXPECT_THAT(page, HasSubstr("<td><center>-0.25</center></td>"));
    EXPECT_THAT(page, HasSubstr("<td><center>L1</center></td><td><center>0 - 0 - 0</center></td></tr>"));
    EXPECT_THAT(page, HasSubstr("<tr><th colspan = 21>Season Totals</th></tr>"));
    EXPECT_THAT(page, HasSubstr("<td><center>3 / 11</center></td>"));
    EXPECT_THAT(page, Not(HasSubstr("Arena dB Rec.")));
    EXPECT_TRUE(page.ends_with("</table><BR><BR></font></center></body></html>\r\n"));

    open(league, WindowId::PlayoffTeamStats);
    const std::string playoffs = league.page("PlayoffTStats/STL.htm");
    EXPECT_THAT(playoffs, HasSubstr("<title> Rinkstar - Playoff Team Stats</title>"));
    EXPECT_THAT(
        playoffs,
        HasSubstr("<th><b>Last 10</b></th><th><b>Arena dB Rec.</b></th><th><b>League dB Rec.</b></th></tr>"));
    EXPECT_THAT(playoffs, HasSubstr("<td><center>97</center></td><td><center>80</center></td></tr>"));
    EXPECT_THAT(playoffs, HasSubstr("<td><center>0</center></td><td><center>0 - 0 - 0</center></td>"))
        << "before any game the streak is a bare 0";
    EXPECT_EQ(league.files.filesIn("IcelineWebPages/TStats").size(), 24U);
}

} // namespace

} // namespace iceline::test
