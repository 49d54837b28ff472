#include "games/ThreeStars.h"

#include "samples/SaveStateWriter.h"
#include "support/Test.h"
#include "support/TestLeague.h"

namespace iceline {
namespace {

using namespace test;

constexpr auto Nobody = std::nullopt;
constexpr int Regulation = 3;
constexpr int Overtime = 4;
constexpr int NoScorer = 255;
constexpr std::size_t AwayRow = RosterRows; ///< the away team's row 0 in the table

/// Two goalies a team in rows 0 and 1, skaters in rows 2 to 19, then empty rows.
StarTable twoTeams() {
    StarTable table;
    for (std::size_t i = 0; i < StarRows; ++i) {
        const std::size_t row = i % RosterRows;
        table[i].goalie = row < 2;
        table[i].Used = row > 19;
    }
    return table;
}

void skater(StarTable& table, std::size_t row, int goals, int assists, int shots) {
    table[row] = {goals + assists, goals, assists, shots, false, false};
}

void goalie(StarTable& table, std::size_t row, int goalsLetIn, int shotsFaced, int assists = 0) {
    table[row] = {goalsLetIn + assists, goalsLetIn, assists, shotsFaced, true, false};
}

StarChoice regulation(const StarTable& table, int homeGoals, int awayGoals) {
    return threeStars(table, {Regulation, homeGoals, awayGoals, NoScorer});
}

StarChoice overtime(const StarTable& table, int homeGoals, int awayGoals, int lastScorer = NoScorer) {
    return threeStars(table, {Overtime, homeGoals, awayGoals, lastScorer});
}

TEST(ThreeStars, SkatersRankByPointsGoalsAssistsAndShots) {
    StarTable table = twoTeams();
    skater(table, 5, 1, 1, 9);
    skater(table, AwayRow + 9, 2, 0, 1);
    skater(table, 3, 1, 1, 8);
    goalie(table, 0, 7, 40, 2);
    EXPECT_THAT(regulation(table, 2, 1), ElementsAre(AwayRow + 9, 5, 3));
}

TEST(ThreeStars, FullTieGoesToHomeTeamAndUpperRow) {
    StarTable table = twoTeams();
    for (const std::size_t row : {AwayRow + 2, std::size_t{7}, std::size_t{12}, AwayRow + 4})
        skater(table, row, 1, 0, 2);
    EXPECT_THAT(regulation(table, 2, 2), ElementsAre(7, 12, AwayRow + 2));

    skater(table, 19, 1, 0, 3);
    EXPECT_THAT(regulation(table, 2, 2), ElementsAre(19, 7, 12)) << "the tie is cut at the third star";
}

TEST(ThreeStars, TieOfTwoLeavesTheThirdStarToTheNextRound) {
    StarTable table = twoTeams();
    skater(table, 10, 3, 0, 5);
    skater(table, AwayRow + 3, 3, 0, 5);
    skater(table, 4, 0, 1, 0);
    EXPECT_THAT(regulation(table, 3, 3), ElementsAre(10, AwayRow + 3, 4));
    EXPECT_THAT(overtime(table, 3, 3, 8), ElementsAre(10, AwayRow + 3, 4)) << "overtime without a winner";
}

TEST(ThreeStars, EmptyRowsAndGoaliesStayOffTheLadder) {
    StarTable table = twoTeams();
    for (StarRow& row : table)
        row.Used = true;
    table[6].Used = false;
    EXPECT_THAT(regulation(table, 1, 1), ElementsAre(6, Nobody, Nobody));
}

TEST(ThreeStars, ShutoutIsTheGoaliesOfTheFirstThreeRows) {
    StarTable table = twoTeams();
    goalie(table, AwayRow + 1, 0, 20);
    goalie(table, AwayRow + 2, 0, 20, 1);
    goalie(table, AwayRow + 3, 0, 44);
    skater(table, AwayRow + 9, 3, 0, 3);
    skater(table, 9, 0, 0, 6);
    EXPECT_THAT(regulation(table, 0, 3), ElementsAre(AwayRow + 2, AwayRow + 9, 9));
    goalie(table, AwayRow, 0, 20, 1);
    EXPECT_EQ(regulation(table, 0, 3)[0], AwayRow) << "of a full tie the upper row";
    goalie(table, 1, 0, 1);
    EXPECT_EQ(regulation(table, 3, 0)[0], 1);
    EXPECT_EQ(regulation(table, 0, 0)[0], AwayRow) << "a scoreless tie counts for the away goalie";
}

TEST(ThreeStars, ShutoutWithoutABusyGoalieNamesTheFirstHomeRow) {
    StarTable table = twoTeams();
    goalie(table, AwayRow + 3, 0, 30);
    EXPECT_EQ(regulation(table, 0, 1)[0], 0);
}

TEST(ThreeStars, ScorelessOvertimeTakesBothBusiestGoaliesAndTheShooter) {
    StarTable table = twoTeams();
    goalie(table, 1, 0, 25);
    goalie(table, AwayRow, 0, 25);
    goalie(table, AwayRow + 1, 0, 24);
    EXPECT_THAT(overtime(table, 0, 0), ElementsAre(1, AwayRow, 2)) << "all skaters at 0 shots";
    goalie(table, AwayRow + 1, 0, 26);
    table[AwayRow + 22].SOG = 4;
    EXPECT_THAT(overtime(table, 0, 0), ElementsAre(AwayRow + 1, 1, AwayRow + 22)) << "Used plays no part";
}

TEST(ThreeStars, OvertimeWinnerLeadsTheLadder) {
    StarTable table = twoTeams();
    skater(table, 8, 1, 0, 1);
    skater(table, AwayRow + 8, 2, 1, 4);
    skater(table, 5, 2, 0, 4);
    EXPECT_THAT(overtime(table, 3, 2, 8), ElementsAre(8, AwayRow + 8, 5));
    EXPECT_THAT(overtime(table, 2, 3, 8), ElementsAre(AwayRow + 8, 5, 8)) << "nobody is named twice";
    EXPECT_THAT(overtime(table, 2, 3, 25), ElementsAre(Nobody, AwayRow + 8, 5)) << "no roster row";
}

TEST(ThreeStars, OvertimeShutoutNamesScorerAndBothGoalies) {
    StarTable table = twoTeams();
    goalie(table, 0, 0, 30);
    goalie(table, 1, 0, 30, 1);
    goalie(table, AwayRow, 0, 3);
    goalie(table, AwayRow + 1, 1, 40);
    EXPECT_THAT(overtime(table, 1, 0, 11), ElementsAre(11, 1, AwayRow));
    goalie(table, AwayRow, 1, 40);
    EXPECT_THAT(overtime(table, 1, 0, 11), ElementsAre(11, 1, AwayRow + 1)) << "of a full tie the lower row";
    goalie(table, AwayRow, 0, 0);
    EXPECT_EQ(overtime(table, 1, 0, 11)[2], AwayRow + 1) << "a goalie who faced no shot is passed over";
}

TEST(ThreeStars, RulesThatFindNoGoalieNameNobody) {
    StarTable table = twoTeams();
    for (StarRow& row : table)
        row.goalie = false;
    table[30].SOG = 2;
    EXPECT_THAT(overtime(table, 0, 0), ElementsAre(Nobody, Nobody, 30));
    EXPECT_THAT(overtime(table, 0, 1, 4), ElementsAre(AwayRow + 4, Nobody, Nobody));
}

class StarsOfAGame : public testing::Test {
protected:
    StarsOfAGame() {
        for (const RosterIndex row : AllRosterRows) {
            const std::string number = std::to_string(row.number());
            rosters.home[row] = {"Home " + number, 0, 50, row.number() < 2 ? "G" : "F"};
            rosters.away[row] = {"Away " + number, 0, 50, row.number() < 2 ? "G" : "F"};
        }
    }

    void select() {
        files.files["game.gs0"] = saveStateBytes(game);
        for (const Side side : {Side::Home, Side::Away}) {
            files.makeFolder(paths::teamFolder(game.of(side).team));
            files.files[paths::playersList(game.of(side).team)] = rosterText(rosters.of(side));
        }
        selectStars(state, readGame(files, "game.gs0"));
    }

    GameSheet game{StLouis, Boston};
    GameRosters rosters;
    MemoryFiles files;
    ApplicationState state;
};

TEST_F(StarsOfAGame, KeepsTeamNameAndRosterRow) {
    game.addGoal(1, 60, Side::Away, Strength::Even, 7, 24);
    game.addGoal(2, 60, Side::Home, Strength::Even, 3);
    rosters.away[8].Name = EmptyRowName;
    rosters.away[9].Name = "";
    game.away.G[8] = game.away.G[9] = 9;
    select();
    EXPECT_EQ(state.Star[0].Name, "Home 3");
    EXPECT_EQ(state.Star[0].Team, StLouis);
    EXPECT_EQ(state.Star[1].Name, "Away 7");
    EXPECT_EQ(state.Star[1].Team, Boston);
    EXPECT_THAT(state.StarSlot, ElementsAre(RosterIndex(3), RosterIndex(7), RosterIndex(24)));
}

TEST_F(StarsOfAGame, LastGoalIsFoundByTheLengthByte) {
    state.GameLastPeriod = Overtime;
    game.addGoal(1, 60, Side::Away, Strength::Even, 7);
    game.addGoal(2, 60, Side::Home, Strength::Even, 3);
    game.addGoal(4, 60, Side::Home, Strength::Even, 5, 17);
    select();
    EXPECT_EQ(state.Star[0].Name, "Home 5");
    game.scoringLength = 19;
    select();
    EXPECT_EQ(state.Star[0].Name, "Home 17") << "the byte three before the table's end, whole entry or not";
}

TEST_F(StarsOfAGame, StarThatTheRulesDoNotNameStaysAsItWas) {
    state.GameLastPeriod = Overtime;
    state.Star[2] = {TeamIndex(21), "Old Star"};
    state.StarSlot[2] = RosterIndex(13);
    game.home.Goals = 1;
    game.home.SOG[1] = 20;
    select();
    EXPECT_EQ(state.Star[1].Name, "Home 1");
    EXPECT_EQ(state.Star[2].Name, "Old Star") << "no away goalie faced a shot";
    EXPECT_EQ(state.Star[2].Team, 21);
    EXPECT_EQ(state.StarSlot[2], RosterIndex(13));
}

} // namespace
} // namespace iceline
