#include "LeadersSupport.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

Rankings& rankings(TestLeague& league, PartOfYear part = PartOfYear::Season) {
    return Rankings::in(league.app, part);
}

TEST(PlayerLeaders, OfEqualPointsTheFirstTeamAndRosterRowComesFirstBothWays) {
    TestLeague league;
    setSkater(league, Buffalo, 3, "Low Team Index", {.GP = 10, .Pts = 40});
    setSkater(league, Buffalo, 9, "Lower On The Roster", {.GP = 10, .Pts = 40});
    setSkater(league, Calgary, 2, "High Team Index", {.GP = 10, .Pts = 40});
    setSkater(league, Calgary, 4, "Best", {.GP = 10, .Pts = 41});
    setSkater(league, Boston, 5, "Worst", {.GP = 10, .Pts = -1});

    Rankings& window = rankings(league);
    EXPECT_THAT(namesOf(window.content().players),
                ElementsAre("BEST", "LOW TEAM INDEX", "LOWER ON THE ROSTER", "HIGH TEAM INDEX", "WORST"));

    window.lColN_Click(2);
    EXPECT_THAT(namesOf(window.content().players),
                ElementsAre("WORST", "LOW TEAM INDEX", "LOWER ON THE ROSTER", "HIGH TEAM INDEX", "BEST"));
}

TEST(PlayerLeaders, ListsSkatersWhoHavePlayedAndNoEmptyRow) {
    TestLeague league;
    setSkater(league, Boston, 4, "Regular", {.GP = 1});
    setSkater(league, Boston, 5, "On The Bench", {.GP = 0, .Pts = 3});
    setSkater(league, Boston, 6, "-----------", {.GP = 7, .Pts = 3, .StarPoints = 4});
    setGoalie(league, Boston, 0, "Masked", {.GP = 7});
    setGoalie(league, Boston, 1, "-----------", {.GP = 1});

    const Rankings::Content& content = rankings(league).content();
    EXPECT_THAT(namesOf(content.players), ElementsAre("REGULAR"));
    EXPECT_THAT(namesOf(content.goalies), ElementsAre("MASKED", "-----------"));
    EXPECT_THAT(content.stars.rows, IsEmpty());
}

TEST(PlayerLeaders, TheWindowShowsTwentyRowsWithTheirNumbers) {
    TestLeague league;
    for (int row = 2; row < 25; ++row)
        setSkater(league, Boston, row, "Skater " + std::to_string(row), {.GP = 1, .Pts = row});

    const Rankings& window = rankings(league);
    EXPECT_EQ(window.PlayerCount, 23);
    EXPECT_THAT(window.content().players.rows, SizeIs(20));
    EXPECT_EQ(window.content().players.rows.front().name, "SKATER 24");
    EXPECT_EQ(window.content().players.rows.front().number, 1);
    EXPECT_EQ(window.content().players.rows.back().number, 20);
}

TEST(PlayerLeaders, AFigureTooLargeForTheTableIsAnErrorThatNamesTheFile) {
    TestLeague league;
    SkaterStats stats{.GP = 1};
    stats.Rating = 3e6;
    setSkater(league, Calgary, 2, "Sniper", stats);

    EXPECT_EQ(errorMessage([&] { rankings(league); }),
              "Calgary Flames/Player Stats.txt: Pow. Rank of 3000000 is too large for the leader tables");
    EXPECT_FALSE(league.app.windows().isLoaded(WindowId::Rankings));
    EXPECT_EQ(league.platform.busyDepth, 0);
}

TEST(ColumnHeads, ASecondClickTurnsTheDirectionAndAnotherColumnKeepsIt) {
    TestLeague league;
    Rankings& window = rankings(league);
    EXPECT_EQ(window.content().players.sort.column, 2);
    EXPECT_FALSE(window.content().players.sort.ascending);
    EXPECT_EQ(window.content().goalies.sort.column, 6);
    EXPECT_EQ(window.content().teams.sort.column, 1);

    window.lColN_Click(8);
    EXPECT_EQ(window.content().players.sort.column, 8);
    EXPECT_FALSE(window.content().players.sort.ascending);
    window.lColN_Click(8);
    EXPECT_TRUE(window.content().players.sort.ascending);
    window.lColN_Click(0);
    EXPECT_EQ(window.PlayerSortColumn, 0);
    EXPECT_TRUE(window.content().players.sort.ascending);

    window.lColG_Click(6);
    EXPECT_TRUE(window.content().goalies.sort.ascending);
    window.tmLeadersCol_Click(2);
    EXPECT_TRUE(window.content().teams.sort.ascending);
    window.tmLeadersCol_Click(0);
    EXPECT_EQ(window.TeamSortColumn, NoColumn);
    window.ThreeStarSort_Click();
    EXPECT_TRUE(window.content().stars.sort.ascending);
    EXPECT_FALSE(Rankings::in(league.app, PartOfYear::Playoffs).PlayerSortAscending);
}

TEST(GoalieLeaders, OneGameIsEnoughToLead) {
    TestLeague league;
    GoalieStats once{.GP = 1};
    once.GAA = 1;
    once.SvPct = 0.95;
    GoalieStats often{.GP = 60};
    often.GAA = 2.5;
    often.SvPct = 0.875;
    setGoalie(league, Boston, 0, "Often", often);
    setGoalie(league, Calgary, 0, "Once", once);

    Rankings& window = rankings(league);
    EXPECT_THAT(namesOf(window.content().goalies), ElementsAre("ONCE", "OFTEN"));
    EXPECT_EQ(window.content().goalies.rows.at(1).figures.at(6), "0.875");
    EXPECT_EQ(window.content().goalies.rows.at(1).figures.at(4), "2.5");
    window.lColG_Click(4);
    EXPECT_THAT(namesOf(window.content().goalies), ElementsAre("OFTEN", "ONCE"));
}

TEST(StarLeaders, SkatersAndGoaliesAreInOneTable) {
    TestLeague league;
    setSkater(league, TeamIndex(3), 5, "Third Team", {.GP = 1, .StarPoints = 30});
    setGoalie(league, TeamIndex(1), 0, "First Team", {.GP = 1, .StarPoints = 30});
    setSkater(league, TeamIndex(2), 5, "Fewest", {.StarPoints = 5});
    setSkater(league, TeamIndex(2), 6, "None", {.GP = 1});

    Rankings& window = rankings(league);
    EXPECT_THAT(namesOf(window.content().stars), ElementsAre("FIRST TEAM", "THIRD TEAM", "FEWEST"));
    window.ThreeStarSort_Click();
    EXPECT_THAT(namesOf(window.content().stars), ElementsAre("FEWEST", "FIRST TEAM", "THIRD TEAM"));
}

/// All teams have played, each with one point less than the one before it, but for what a test changes.
MemoryFiles playedLeague() {
    TestLeague league;
    for (const TeamIndex team : AllLeagueTeams)
        league.setRecord(team, PartOfYear::Season, teamRecord(30, 40 - team.number()));
    return league.files;
}

TEST(TeamLeaders, TeamsWithoutGamesTakeATurnAndNoRow) {
    TestLeague league(playedLeague());
    for (const TeamIndex team : {Boston, Buffalo, Calgary})
        league.setRecord(team, PartOfYear::Season, {});

    Rankings& window = rankings(league);
    EXPECT_THAT(window.content().teams.rows, SizeIs(21));
    EXPECT_EQ(window.content().teams.rows.front().team, 3);
    EXPECT_EQ(window.content().teams.rows.back().number, 21);

    window.tmLeadersCol_Click(2);
    EXPECT_EQ(window.content().teams.rows.front().number, 1);
    EXPECT_EQ(window.content().teams.rows.front().team, 23);
}

TEST(TeamLeaders, NegativeRankingsAndTiesKeepTheirPlacesBothWays) {
    TestLeague league;
    const double powerRankings[] = {-3.25, 0, 21.37, -3.25};
    for (TeamIndex team{0}; team < 4; ++team) {
        TeamRecord record = teamRecord(2);
        record.PowerRanking = powerRankings[team];
        league.setRecord(team, PartOfYear::Season, record);
    }

    Rankings& window = rankings(league);
    window.tmLeadersCol_Click(10);
    EXPECT_EQ(abbrsOf(window.content().teams), "CGY BUF BOS CHI");
    EXPECT_EQ(window.content().teams.rows.at(3).figures.at(9), "-3.25");
    window.tmLeadersCol_Click(10);
    EXPECT_EQ(abbrsOf(window.content().teams), "BOS CHI BUF CGY");
    window.tmLeadersCol_Click(0);
    EXPECT_EQ(abbrsOf(window.content().teams), "CHI CGY BUF BOS");
}

TEST(TeamLeaders, GoalsAGameAreRoundedOnceWithTiesToTheEvenDigit) {
    TestLeague league;
    league.setRecord(Boston, PartOfYear::Season, teamRecord(8, 0, 5, 7));

    const LeaderLine row = rankings(league).content().teams.rows.at(0);
    EXPECT_EQ(row.figures.at(3), "0.62");
    EXPECT_EQ(row.figures.at(4), "0.88");
    EXPECT_EQ(league.app.state.TeamLeaderTable[Buffalo].values[columnOf(TeamLeaderColumns, "GPG")], 0);
}

TEST(LeaderTables, TheLoadThatRanLastDecidesWhatBothWindowsShow) {
    TestLeague league;
    league.setRecord(Boston, PartOfYear::Season, teamRecord(5));
    league.setRecord(Boston, PartOfYear::Playoffs, teamRecord(2));
    setSkater(league, Boston, 2, "Season", {.GP = 1, .Pts = 3});
    setSkater(league, Boston, 3, "Both", {.GP = 1, .Pts = 2});
    league.setPlayerStats(Boston, PartOfYear::Playoffs, 3, SkaterStats{.GP = 1, .Pts = 8});

    Rankings& season = rankings(league);
    EXPECT_EQ(league.app.state.TeamLeaderTable[Boston].GP(), 5);
    Rankings& playoffs = rankings(league, PartOfYear::Playoffs);
    EXPECT_EQ(playoffs.content().title, "Playoff Rankings");
    EXPECT_EQ(league.app.state.TeamLeaderTable[Boston].GP(), 2);

    EXPECT_THAT(namesOf(season.content().players), ElementsAre("SEASON", "BOTH"));
    season.lColN_Click(0);
    EXPECT_THAT(namesOf(season.content().players), ElementsAre("BOTH"));
    season.tmLeadersLoad();
    EXPECT_EQ(league.app.state.TeamLeaderTable[Boston].GP(), 5);
    season.lgLeadersLoadN();
    playoffs.lColN_Click(0);
    EXPECT_THAT(namesOf(playoffs.content().players), ElementsAre("SEASON"))
        << "never more rows than the window's own loads found";
}

TEST(RankingsWindow, TellsWhoShowsItOfEveryChangeAndWritesNoPage) {
    TestLeague league;
    Rankings& window = rankings(league);
    int changes = 0;
    window.onChange = [&changes] { ++changes; };
    const int writes = league.files.writes;
    window.lColN_Click(1);
    window.lColG_Click(1);
    window.tmLeadersCol_Click(1);
    window.ThreeStarSort_Click();
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(league.files.writes, writes);
}

} // namespace
} // namespace iceline
