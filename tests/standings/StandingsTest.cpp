#include "standings/Standings.h"

#include "app/WelcomeWindow.h"
#include "files/FileError.h"
#include "standings/StandingsSupport.h"
#include "support/NumberedRecord.h"
#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline::test {
namespace {

constexpr std::size_t Wales = 0;
constexpr std::size_t Campbell = 1;

class StandingsWindow : public testing::Test {
protected:
    void set(std::string_view abbr, const TeamRecord& record) {
        league.setRecord(team(abbr), PartOfYear::Season, record);
    }

    Standings& open() {
        return static_cast<Standings&>(WelcomeWindow(league.app).List1_Click(WindowId::Standings));
    }

    /// Loads the window as Generate Webpages does.
    const Standings::Content& publish() {
        league.app.windows().unload(WindowId::Standings);
        league.app.state.ShowWindows = false;
        return Standings::in(league.app).content();
    }

    std::string adams() { return teamsOfRows(open().content().divisions[0]); }

    TestLeague league;
};

TEST_F(StandingsWindow, LeagueThatHasPlayedNothing) {
    const Standings::Content& content = open().content();
    EXPECT_EQ(teamsOfRows(content.divisions[0]), "QUE OTA MTL HFD BUF BOS");
    EXPECT_EQ(teamsOfRows(content.divisions[3]), "WPG VAN SJ LA EDM CGY");
    EXPECT_EQ(teamsOfRows(content.conferences[Campbell]), "WPG TOR VAN TB STL SJ MIN LA EDM DET CHI CGY");
    EXPECT_THAT(teamsOfRows(content.homeAway.home), StartsWith("BOS BUF CGY CHI"));
    EXPECT_THAT(teamsOfRows(content.homeAway.away), StartsWith("BOS BUF CGY CHI"));
    EXPECT_THAT(teamsOfRows(content.versus[Campbell]), StartsWith("CGY CHI DET EDM"));
}

TEST_F(StandingsWindow, ShowsTheFiguresOfTheRegularSeasonEvenInThePlayoffs) {
    auto record = numberedRecord<TeamRecord>();
    record.Diff = 0.83;
    record.PowerRanking = 3.468;
    set("HFD", record);
    league.app.state.SeasonFolder = seasonFolder(PartOfYear::Playoffs);
    const PointsRow& row = open().content().divisions[0].front();
    EXPECT_EQ(row.team, team("HFD"));
    EXPECT_EQ(row.figures, (TeamStanding{1, 2, 3, 4, 6, 7, 8, 1, 347}));
}

TEST_F(StandingsWindow, DifferenceCountsAsAWholeNumberToTheEvenSide) {
    TeamRecord record;
    record.GF = 5;
    record.Diff = 0.5;
    set("BOS", record);
    record.Diff = -0.4;
    set("BUF", record);
    EXPECT_THAT(adams(), StartsWith("BUF BOS QUE")) << "all three count as 0";
    record.Diff = 1.5;
    set("BOS", record);
    EXPECT_THAT(adams(), StartsWith("BOS BUF QUE"));
}

TEST_F(StandingsWindow, PowerRankingsOfALongSeasonRankToTheHundredth) {
    TeamRecord record;
    record.PowerRanking = 32767.99;
    set("BOS", record);
    record.PowerRanking = 327.68;
    set("BUF", record);
    record.PowerRanking = 327.67;
    set("QUE", record);
    record.PowerRanking = 32768;
    set("HFD", record);
    EXPECT_EQ(adams(), "HFD BOS BUF QUE OTA MTL");
}

TEST_F(StandingsWindow, ClickInTheCatalogueAndAChangeOfTheBooksBringAnOpenWindowUpToDate) {
    Standings& window = open();
    int redrawn = 0;
    window.onChange = [&redrawn] { ++redrawn; };
    window.DivisionStandingsUpdate();
    EXPECT_EQ(redrawn, 1);
    window.HomeAwayStandingsUpdate();
    EXPECT_EQ(redrawn, 2);
    TeamRecord record;
    record.Points = 2;
    record.HWinPercent = 1;
    set("MTL", record);
    open();
    EXPECT_GT(redrawn, 2);
    EXPECT_EQ(window.content().divisions[0].front().team, team("MTL"));
    EXPECT_EQ(window.content().homeAway.home.front().team, team("MTL"));

    record.Points = 3;
    record.SameConfW = 1;
    record.AWinPercent = 1;
    set("BUF", record);
    window.renew();
    EXPECT_EQ(window.content().divisions[0].front().team, team("BUF"));
    EXPECT_EQ(window.content().homeAway.away.front().team, team("BUF"));
    EXPECT_EQ(window.content().versus[Wales].front().team, team("BUF"));
}

TEST_F(StandingsWindow, HomeAndAwayRankByWinsAloneAndTiesGoByTheTeamTable) {
    TeamRecord record;
    record.HW = 1;
    record.HL = 1;
    record.HGP = 2;
    record.HWinPercent = 0.5;
    record.AT = 3;
    record.AGP = 3;
    set("WPG", record);
    record.HW = record.HL = 5;
    record.HGP = 10;
    record.AW = 1;
    record.AT = 0;
    record.AGP = 1;
    record.AWinPercent = 1;
    set("TOR", record);
    const HomeAwayStandings& standings = open().content().homeAway;
    EXPECT_THAT(teamsOfRows(standings.home), StartsWith("TOR WPG BOS BUF"));
    EXPECT_EQ(standings.home[1].record, (SplitRecord{1, 1, 0, 500, 2}));
    EXPECT_THAT(teamsOfRows(standings.away), AllOf(StartsWith("TOR BOS BUF"), EndsWith("WPG")));
    EXPECT_EQ(standings.away.back().record, (SplitRecord{0, 0, 3, 0, 3}));
    EXPECT_EQ(standings.away.front().record, (SplitRecord{1, 0, 0, 1000, 1}));
}

/// CGY is good against Wales, WPG against Campbell; MTL good against Wales, QUE against Campbell.
class VersusTables : public StandingsWindow {
protected:
    VersusTables() {
        for (const std::string_view abbr : {"WPG", "MTL"})
            set(abbr, record(3, 8, 5, 0, 0, 1));
        for (const std::string_view abbr : {"CGY", "QUE"})
            set(abbr, record(0, 2, 0, 5, 9, 2));
    }

    static TeamRecord record(int ownW, int ownL, int ownT, int otherW, int otherL, int otherT) {
        TeamRecord record;
        record.SameConfW = ownW;
        record.SameConfL = ownL;
        record.SameConfT = ownT;
        record.OtherConfW = otherW;
        record.OtherConfL = otherL;
        record.OtherConfT = otherT;
        return record;
    }
};

TEST_F(VersusTables, FiguresAreUnderTheConferenceTheyWerePlayedAgainst) {
    const Standings::Content& content = open().content();
    const auto against = [&content](std::size_t conference, std::size_t place) {
        return content.versus[conference][place].against;
    };
    EXPECT_THAT(against(Wales, 0), ElementsAre(SplitRecord{3, 8, 5, 188, 16}, SplitRecord{0, 0, 1, 0, 1}));
    EXPECT_THAT(against(Campbell, 0), ElementsAre(SplitRecord{0, 0, 1, 0, 1}, SplitRecord{3, 8, 5, 188, 16}));
    EXPECT_THAT(against(Campbell, 1), ElementsAre(SplitRecord{5, 9, 2, 312, 16}, SplitRecord{0, 2, 0, 0, 2}));
}

TEST_F(VersusTables, ClicksRankWithoutTouchingAFile) {
    Standings& window = open();
    const Standings::Content& content = window.content();
    EXPECT_THAT(teamsOfRows(content.versus[Wales]), StartsWith("MTL BOS BUF"));
    EXPECT_THAT(teamsOfRows(content.versus[Campbell]), StartsWith("WPG CGY CHI"));

    const int reads = league.files.reads;
    int redrawn = 0;
    window.onChange = [&redrawn] { ++redrawn; };
    window.EvW_Click();
    window.WvE_Click();
    EXPECT_EQ(redrawn, 2);
    EXPECT_EQ(league.files.reads, reads);
    EXPECT_THAT(teamsOfRows(content.versus[Wales]), StartsWith("QUE BOS BUF"));
    EXPECT_THAT(teamsOfRows(content.versus[Campbell]), StartsWith("CGY CHI"));
    EXPECT_THAT(content.versusRankedBy, ElementsAre(Conference::Campbell, Conference::Wales));
    EXPECT_EQ(content.versus[Wales][0].against[Campbell].WinPercent, 312);

    window.EvE_Click();
    window.WvW_Click();
    EXPECT_THAT(teamsOfRows(content.versus[Wales]), StartsWith("MTL BOS BUF"));
    EXPECT_THAT(content.versusRankedBy, ElementsAre(Conference::Wales, Conference::Campbell));
}

TEST_F(StandingsWindow, PagesAreWrittenOnlyWhileTheSiteIs) {
    constexpr std::array Pages{"DivisionStandings.htm", "ConferenceStandings.htm", "HomeAwayStandings.htm",
                               "vsConfStandings.htm"};
    open();
    for (const char* page : Pages)
        EXPECT_FALSE(league.files.isFile(paths::page(page))) << page;
    publish();
    for (const char* page : Pages)
        EXPECT_TRUE(league.files.isFile(paths::page(page))) << page;

    const std::string versusPage = league.page("vsConfStandings.htm");
    Standings::in(league.app).EvW_Click();
    EXPECT_EQ(league.page("vsConfStandings.htm"), versusPage);
}

TEST_F(StandingsWindow, PagesBearTheMarksOfTheRunBefore) {
    league.app.state.SeasonLength = 2;
    TeamRecord record;
    record.GP = 2;
    for (const TeamIndex other : AllLeagueTeams)
        league.setRecord(other, PartOfYear::Season, record);
    record.Wins = 2;
    record.Points = 4;
    set("BOS", record);

    const auto row = [this](const char* page, const char* abbr) {
        for (const std::string& line : linesOf(league.page(page)))
            if (line.find(std::string("LogoMinis/") + abbr) != std::string::npos)
                return line;
        return std::string();
    };
    EXPECT_EQ(publish().divisions[0].front().mark, "z");
    EXPECT_EQ(Standings::in(league.app).content().conferences[Wales].front().mark, "z");
    EXPECT_THAT(row("DivisionStandings.htm", "BOS"), StartsWith("<tr><td><b></b></td>"));
    EXPECT_THAT(row("ConferenceStandings.htm", "BOS"), StartsWith("<tr><center><td><b></b></td>"));
    publish();
    EXPECT_THAT(row("DivisionStandings.htm", "BOS"), StartsWith("<tr><td><b>z</b></td>"));
    EXPECT_THAT(row("ConferenceStandings.htm", "BOS"), StartsWith("<tr><center><td><b>z</b></td>"));
    EXPECT_THAT(row("ConferenceStandings.htm", "BUF"), StartsWith("<tr><center><td><b></b></td>"));
}

TEST_F(StandingsWindow, RecordThatCannotBeReadStopsTheUpdateAndChangesNothing) {
    TeamRecord record;
    record.Points = 2;
    set("BOS", record);
    Standings& window = open();
    record.Points = 9;
    set("BUF", record);
    record.PowerRanking = 65536;
    set("CGY", record);
    EXPECT_EQ(errorMessage([&] { window.DivisionStandingsUpdate(); }),
              "Calgary Flames/Records.txt, line 1, item 12 (PowerRanking): 65536 is more than the standings "
              "can hold");
    league.files.files["Calgary Flames/Records.txt"] = "1,2\r\n";
    EXPECT_THAT(errorMessage([&] { window.DivisionStandingsUpdate(); }),
                StartsWith("Calgary Flames/Records.txt, line"));
    EXPECT_THAT(errorMessage([&] { window.HomeAwayStandingsUpdate(); }),
                StartsWith("Calgary Flames/Records.txt, line"));
    EXPECT_THAT(errorMessage([&] { window.vsConfLoad(); }), StartsWith("Calgary Flames/Records.txt, line"));
    EXPECT_EQ(window.content().divisions[0].front().team, team("BOS"));
    EXPECT_EQ(league.app.state.AdamsOrder.front(), team("BOS"));
    EXPECT_EQ(league.app.state.StandingsTable[team("BUF")].Points, 0);
}

} // namespace
} // namespace iceline::test
