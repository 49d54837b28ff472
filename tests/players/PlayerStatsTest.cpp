#include "players/PlayerStats.h"

#include "files/FileError.h"
#include "players/PlayerFragments.h"
#include "support/NumberedRecord.h"
#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline::test {

namespace {

/// A team of two goalies and four forwards, the last of whom stands below an empty row.
Roster smallRoster() {
    Roster roster;
    roster[0] = {"Gil Keeper", 31, 80, "G"};
    roster[1] = {"Joe Backup", 30, 60, "G"};
    roster[2] = {"Ann First", 9, 70, "F"};
    roster[3] = {"Bo Second", 19, 71, "D"};
    roster[4] = {"Cy Third", 4, 72, "F"};
    roster[6] = {"Di Hidden", 5, 73, "F"};
    return roster;
}

class PlayerStatsTest : public testing::Test {
protected:
    PlayerStatsTest() {
        league.setRoster(Boston, smallRoster());
        setSkater(2, 5, 1.25);
        setSkater(3, 5, -0.5);
        setSkater(4, 8, 6.125);
        GoalieStats goalie;
        goalie.GP = 3;
        goalie.SvPct = 0.912;
        goalie.Rating = 7.25;
        league.setPlayerStats(Boston, PartOfYear::Season, 0, goalie);
    }

    void setSkater(int row, int points, double rating) {
        SkaterStats stats;
        stats.GP = 2;
        stats.Pts = points;
        stats.Rating = rating;
        league.setPlayerStats(Boston, PartOfYear::Season, row, stats);
    }

    PlayerStats& open() { return static_cast<PlayerStats&>(league.app.windows().use(WindowId::PlayerStats)); }

    static std::vector<std::string> namesOf(const std::vector<PlayerTableRow>& rows) {
        std::vector<std::string> names;
        for (const PlayerTableRow& row : rows)
            names.push_back(row.Name);
        return names;
    }

    TestLeague league;
};

TEST_F(PlayerStatsTest, OpensOnPowerRankingAndTurnsAColumnRound) {
    PlayerStats& window = open();
    window.PlayerStatsN_Click(5);
    EXPECT_EQ(window.SkaterSortColumn, 2) << "nothing happens before a team is chosen";

    window.PlayersTeamSelect = Boston;
    window.PlayersTeamSelect_Click();
    EXPECT_THAT(namesOf(window.content().skaters), ElementsAre("Cy Third", "Ann First", "Bo Second"));
    window.PlayerStatsN_Click(2);
    EXPECT_THAT(namesOf(window.content().skaters), ElementsAre("Bo Second", "Ann First", "Cy Third"));

    window.PlayerStatsN_Click(5);
    EXPECT_TRUE(window.SkaterSortAscending) << "another column keeps the direction";
    EXPECT_THAT(namesOf(window.content().skaters), ElementsAre("Ann First", "Bo Second", "Cy Third"));
    window.PlayerStatsN_Click(5);
    EXPECT_THAT(namesOf(window.content().skaters), ElementsAre("Cy Third", "Ann First", "Bo Second"))
        << "of equal values the one higher on the roster comes first in both directions";
    window.PlayerStatsN_Click(PlayerStats::SkaterNameColumn);
    EXPECT_THAT(namesOf(window.content().skaters), ElementsAre("Ann First", "Bo Second", "Cy Third"));
}

TEST_F(PlayerStatsTest, EveryFigureIsInItsColumn) {
    Roster roster;
    roster[0] = {"Gil Keeper", 31, 80, "G"};
    roster[1] = {"Ann First", 99, 70, "F"};
    league.setRoster(Boston, roster);
    league.setPlayerStats(Boston, PartOfYear::Playoffs, 0, numberedRecord<GoalieStats>());
    league.setPlayerStats(Boston, PartOfYear::Playoffs, 1, numberedRecord<SkaterStats>());

    const TeamPlayers players = readTeamPlayers(league.files, Boston, PartOfYear::Playoffs);
    EXPECT_THAT(players.skaters.rows().front().texts,
                ElementsAre("F", "99", "15.5", "2", "4", "6", "7.5", "10.5", "8", "12", "13", "11", "1"));
    EXPECT_THAT(players.goalies.rows().front().texts,
                ElementsAre("G", "31", "1.55", "5", "6", "7", "9.5", "10.5", "3", "8", "2", "4", "1"));
    std::vector<std::string> leaders;
    for (const CategoryLeader& leader : players.leaders)
        leaders.push_back(std::string(leader.heading) + " " + leader.value);
    EXPECT_THAT(leaders, ElementsAre("Goals 2", "Assists 4", "Points 6", "Pts. Per Game 7.5",
                                     "Power Ranking 15.5", "Penalty Minutes 11", "PP Goals 12", "SH Goals 13",
                                     "Shots on Goal 8", "Shot % 10.5"));

    writePlayerFragments(league.files, Boston, PartOfYear::Playoffs);
    EXPECT_EQ(
        league.page("PlayoffPStats/BOS_N0.php"),
        "<tr><td><center>1</center></td><td><center>F</center></td><td><center>99</center></td>\r\n"
        "<td><a href=\"../PlayoffProfiles/BOS/Ann First.htm\">Ann First</a></td>"
        "<td><center>15.5</center></td>\r\n"
        "<td><center>2</center></td>\r\n<td><center>4</center></td>\r\n<td><center>6</center></td>\r\n"
        "<td><center>7.5</center></td>\r\n<td><center>10.5</center></td>\r\n"
        "<td><center>8</center></td>\r\n<td><center>12</center></td>\r\n<td><center>13</center></td>\r\n"
        "<td><center>11</center></td>\r\n<td><center>1</center></td></tr>\r\n\r\n");
    EXPECT_EQ(league.page("PlayoffPStats/BOS_G0.php"),
              "<tr><td><center>1</center></td><td><center>G</center></td><td><center>31</center></td>\r\n"
              "<td><a href=\"../PlayoffProfiles/BOS/Gil Keeper.htm\">Gil Keeper</a></td>\r\n"
              "<td><center>1.55</center></td>\r\n"
              "<td><center>5</center></td>\r\n<td><center>6</center></td>\r\n<td><center>7</center></td>\r\n"
              "<td><center>9.5</center></td>\r\n<td><center>10.5</center></td>\r\n"
              "<td><center>3</center></td>\r\n<td><center>8</center></td>\r\n<td><center>2</center></td>\r\n"
              "<td><center>4</center></td>\r\n<td><center>1</center></td></tr>\r\n\r\n");
}

TEST_F(PlayerStatsTest, RoundsAFigureToTheEvenDigitOfItsScale) {
    setSkater(2, 5, 0.0125);
    setSkater(3, 5, 0.0375);
    setSkater(4, 5, -0.0625);
    PlayerStats& window = open();
    window.PlayersTeamSelect = Boston.number();
    window.PlayersTeamSelect_Click();
    std::vector<std::string> rankings;
    for (const PlayerTableRow& row : window.content().skaters)
        rankings.push_back(row.texts[PlayerStats::RankingColumn]);
    EXPECT_THAT(rankings, ElementsAre("0.038", "0.012", "-0.062"));
}

TEST_F(PlayerStatsTest, ADamagedFileLeavesClearedTables) {
    PlayerStats& window = open();
    window.PlayersTeamSelect = Boston.number();
    window.PlayersTeamSelect_Click();
    league.files.files["Buffalo Sabres/Player Stats.txt"] = "0,0\r\n";
    int redrawn = 0;
    window.onChange = [&redrawn] { ++redrawn; };
    window.PlayersTeamSelect = 1;
    EXPECT_THROW(window.PlayersTeamSelect_Click(), FileError);
    EXPECT_GT(redrawn, 0);
    window.PlayerStatsN_Click(3);
    EXPECT_TRUE(window.content().skaters.empty());
    EXPECT_TRUE(window.content().goalies.empty());
    EXPECT_TRUE(window.content().leaders.empty());
}

TEST_F(PlayerStatsTest, NamesTheLeadersOfTheSkaters) {
    PlayerStats& window = open();
    window.PlayersTeamSelect = Boston;
    window.PlayersTeamSelect_Click();
    const auto& leaders = window.content().leaders;
    ASSERT_EQ(leaders.size(), 10U);
    EXPECT_EQ(leaders[0].Name, "Ann First") << "at level figures the upper roster row leads";
    EXPECT_EQ(leaders[2].Name, "Cy Third");
    EXPECT_EQ(leaders[4].value, "6.125");

    window.PlayersTeamSelect = PlayerStats::NotChosen;
    window.PlayersTeamSelect_Click();
    EXPECT_TRUE(window.content().leaders.empty());
    EXPECT_TRUE(window.content().skaters.empty());
}

TEST_F(PlayerStatsTest, WritesTheFragmentsOfEveryOrder) {
    TeamRecord record;
    record.Wins = 5;
    record.WinPercent = 0.625;
    league.setRecord(Boston, PartOfYear::Season, record);
    league.app.state.ShowWindows = false;
    open();
    EXPECT_TRUE(league.app.state.ShowWindows) << "the last window of the run ends it";
    EXPECT_EQ(league.page("PStats/BOS_records.php"),
              "<tr><td><center> 5 </center></td><td><center> 0 </center></td><td><center> 0 "
              "</center></td><td><center> 0 "
              "</center></td><td><center> .625 </center></td><td><center> 0 </center></td></tr>\r\n");
    EXPECT_THAT(league.page("PStats/BOS_N2.php"),
                StartsWith("<tr><td><center>1</center></td><td><center>F</center></td><td><center>4<"));
    EXPECT_THAT(league.page("PStats/BOS_G2.php"), HasSubstr("<td><center>0.725</center></td>\r\n"));
    EXPECT_THAT(league.page("PStats/BOS_N16.php"),
                StartsWith("<tr><td><center>1</center></td><td><center>D"));
    EXPECT_THAT(league.page("PStats/BOS_N27.php"),
                StartsWith("<tr><td><center>1</center></td><td><center>F"));
    EXPECT_THAT(league.page("PStats/BOS_leaders.php"),
                HasSubstr("<tr><th colspan = 2><center><b>Pts. Per Game</th></tr>\r\n<tr><td>Ann First</td>"
                          "<td><center>0</center></td></tr>\r\n"));
    EXPECT_EQ(league.files.filesIn("IcelineWebPages/PStats").size(), 24U * 58U + 1U)
        << "58 a team, beside the template's page";
}

TEST_F(PlayerStatsTest, ATeamWithoutSkatersHasEmptyLeaders) {
    league.setRoster(Boston, Roster());
    league.app.state.ShowWindows = false;
    open();
    EXPECT_EQ(league.page("PStats/BOS_N0.php"), "");
    EXPECT_THAT(league.page("PStats/BOS_leaders.php"),
                StartsWith("<tr><th colspan = 2><center><b>Goals</th></tr>\r\n"
                           "<tr><td></td><td><center>0</center></td></tr>\r\n"));
}

} // namespace

} // namespace iceline::test
