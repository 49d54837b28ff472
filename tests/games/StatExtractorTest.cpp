#include "games/StatExtractor.h"

#include "files/FileError.h"
#include "games/ImportLeague.h"
#include "games/Summaries.h"

namespace iceline {
namespace {

using namespace test;

GameSheet overtimeWin() {
    GameSheet game(StLouis, Boston);
    game.addGoal(1, 60, Side::Away, Strength::Even, 7);
    game.addPenalty(2, 90, Side::Away, Infraction::Hooking, 9);
    game.addGoal(2, 120, Side::Home, Strength::PowerPlay, 4, 6);
    game.addGoal(4, 300, Side::Home, Strength::Even, 5, 4);
    return game;
}

class StatExtractorTest : public ImportLeague {};

TEST_F(StatExtractorTest, LoadListsTheCoachesAfterNoCoach) {
    league.addCoach("beth");
    league.addCoach("Adam");
    EXPECT_THAT(window().content().coaches, ElementsAre("No Coach", "Adam", "beth"));
    EXPECT_EQ(window().T1Coach, -1);
    EXPECT_EQ(window().content().FileName, "[No File Loaded]");
    EXPECT_EQ(league.platform.busyDepth, 0);
}

TEST_F(StatExtractorTest, LoadTurnsAFinishedSeasonToThePlayoffs) {
    EXPECT_EQ(window().caption(), "Stat Extractor");
    league.app.windows().unloadAll();
    state().SeasonLength = -1;
    EXPECT_EQ(window().caption(), "Stat Extractor     ***** PLAYOFF MODE *****");
}

TEST_F(StatExtractorTest, SelectedGameFillsTheWindowAndWritesNothing) {
    save("games/one.gs0", overtimeWin());
    const auto before = files().files;
    int changes = 0;
    window().onChange = [&] { ++changes; };
    select("  games/one.gs0 ");

    EXPECT_EQ(window().content().FileName, "games/one.gs0");
    EXPECT_EQ(state().SaveStatePath, "games/one.gs0");
    const GameReport& report = window().content().report.value();
    EXPECT_EQ(report.FinalMark, "F/OT");
    EXPECT_EQ(report.home.stats.Goals, 2);
    EXPECT_EQ(report.home.players[5].Name, league.roster(StLouis)[5].Name);
    EXPECT_EQ(report.Star[0].Name, league.roster(StLouis)[5].Name) << "the winning goal's scorer";
    EXPECT_THAT(scoringSummaryText(report), HasSubstr("OT  5:00  STL  " + report.Star[0].Name));
    EXPECT_THAT(penaltySummaryText(report), HasSubstr("Hooking               2:00\r\n"));
    EXPECT_EQ(changes, 1);

    EXPECT_TRUE(window().GameLoaded);
    EXPECT_EQ(state().GameLastPeriod, 4);
    EXPECT_EQ(files().files, before);
}

TEST_F(StatExtractorTest, GameWithoutEntriesKeepsTheLastPeriod) {
    save("ot.gs0", overtimeWin());
    save("quiet.gs0", GameSheet(StLouis, Boston));
    select("ot.gs0");
    select("quiet.gs0");
    EXPECT_EQ(window().content().report->FinalMark, "F/OT");
    state().GameLastPeriod = 0;
    select("quiet.gs0");
    EXPECT_EQ(window().content().report->FinalMark, "F");
}

TEST_F(StatExtractorTest, NothingChangesWhenNoGameIsRead) {
    save("one.gs0", overtimeWin());
    select("one.gs0");
    save("all-stars.gs0", GameSheet(TeamIndex(24), Boston));
    files().makeFolder("games");
    files().files["Boston Bruins/Players List.txt"] = "only,1,2,F\r\n";
    save("no-roster.gs0", GameSheet(Boston, StLouis));

    league.platform.chosen.push_back(std::nullopt);
    window().LoadStats_Click();
    EXPECT_THAT(league.said(), IsEmpty());
    select("all-stars.gs0");
    EXPECT_THAT(league.said(), ElementsAre(HasSubstr("all-stars.gs0: the home team is number 24")));
    for (const char* unreadable : {"missing.gs0", "games", "no-roster.gs0"})
        EXPECT_THROW(select(unreadable), FileError);

    EXPECT_EQ(window().content().FileName, "one.gs0");
    EXPECT_EQ(state().SaveStatePath, "one.gs0");
    EXPECT_EQ(window().content().report->home.team, StLouis);
    EXPECT_EQ(state().GameLastPeriod, 4);
}

TEST_F(StatExtractorTest, ImportedGameIsPublishedAndNotShown) {
    league.addCoach("Adam");
    league.addCoach("Beth");
    save("evening/one.gs0", overtimeWin());
    window().T1Coach_Click(2);
    window().T2Coach_Click(0);
    state().SaveStatePath = "evening/one.gs0";
    window().GameLoaded = true;
    window().ImportStats_Click();

    EXPECT_EQ(window().content().report, std::nullopt);
    EXPECT_THAT(league.page("BoxScores/one.htm"), HasSubstr("BOS 1 , STL 2 </title>"));
    EXPECT_THAT(league.page("BoxScores/one.htm"), HasSubstr("<b>Beth</b>"));
    EXPECT_THAT(league.page("BoxScores/one.htm"), HasSubstr("<th>First Star</th><td><center>"
                                                            "<img src=\"../BannerMinis/STL.gif\">"));
    EXPECT_THAT(league.page("BoxScores.htm"), HasSubstr("<td><b>E</b></td>"));
    EXPECT_THAT(files().files["Last 10 Box.txt"], HasSubstr("\"one.htm\""));
}

TEST_F(StatExtractorTest, OptionButtonsDecideTheKindOfGame) {
    window().Season = true;
    EXPECT_EQ(window().gameKind(), GameKind::Exhibition);
    window().Exhibition = false;
    state().PlayoffMode = true;
    EXPECT_EQ(window().gameKind(), GameKind::Season);
    window().Season = false;
    EXPECT_EQ(window().gameKind(), GameKind::Playoff);
    state().PlayoffMode = false;
    EXPECT_EQ(window().gameKind(), std::nullopt);
}

TEST_F(StatExtractorTest, NobodyCoachesBothTeams) {
    league.addCoach("Adam");
    league.addCoach("Beth");
    window().T1Coach_Click(2);
    EXPECT_EQ(window().homeCoach(), "Beth");
    window().T2Coach_Click(2);
    EXPECT_EQ(window().awayCoach(), "Beth");
    EXPECT_EQ(window().T1Coach, 0);
    EXPECT_EQ(window().homeCoach(), std::nullopt);
    window().T1Coach_Click(1);
    EXPECT_EQ(window().T2Coach, 2) << "different coaches leave each other alone";
    window().T1Coach_Click(2);
    EXPECT_EQ(window().T2Coach, 0);
}

} // namespace
} // namespace iceline
