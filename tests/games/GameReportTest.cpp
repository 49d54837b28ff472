#include "games/GameReport.h"

#include "samples/SaveStateWriter.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

GameReport reportOf(const GameSheet& game, int formerPeriod = 0) {
    GameRosters rosters;
    for (std::size_t row = 0; row < rosters.home.size(); ++row) {
        rosters.home[row].Name = "Home " + std::to_string(row);
        rosters.away[row].Name = "Away " + std::to_string(row);
    }
    rosters.away[24] = RosterRow();
    const GameSheet seen = readGameSheet({"game.gs0", saveStateBytes(game)});
    return gameReport({seen, rosters, 0, std::nullopt}, formerPeriod);
}

TEST(GameReport, JoinsRosterRowsWithTheirFigures) {
    GameSheet game(Montreal, Boston);
    game.home.G[0] = 5;
    game.home.SOG[24] = 3;
    game.away.G[24] = 2;
    game.away.A[24] = 1;
    game.away.PIM[3] = 7;
    const GameReport report = reportOf(game);
    EXPECT_EQ(report.home.players[0].Name, "Home 0");
    EXPECT_EQ(report.home.players[0].G, 5);
    EXPECT_EQ(report.home.players[24].SOG, 3);
    EXPECT_EQ(report.away.players[24].Pts, 3);
    EXPECT_TRUE(report.away.players[24].isEmpty());
    EXPECT_EQ(report.away.players[3].PIM, 7);
}

TEST(GameReport, PercentagesOfNothing) {
    const TeamGameStats stats = reportOf(GameSheet(Montreal, Boston)).home.stats;
    EXPECT_EQ(stats.ShootingPct, "0.0%");
    EXPECT_EQ(stats.FaceWinPct, "0.000%");
    EXPECT_EQ(stats.PassAcc, "0.000");
}

TEST(GameReport, PercentagesAreRoundedWithoutTrailingZeros) {
    GameSheet game(Montreal, Boston);
    game.home.Shots = 10;
    game.away.Shots = 32;
    game.away.Goals = 2;
    game.home.FaceoffsWon = 22;
    game.away.FaceoffsWon = 17;
    game.home.PassAtt = 7;
    game.home.PassComp = 7;
    game.away.PassAtt = 80;
    game.away.PassComp = 57;
    const GameReport report = reportOf(game);
    EXPECT_EQ(report.home.stats.ShootingPct, "0%");
    EXPECT_EQ(report.away.stats.ShootingPct, "6.2%") << "6.25 goes to the even neighbour";
    EXPECT_EQ(report.home.stats.FaceWinPct, "56.4%");
    EXPECT_EQ(report.away.stats.FaceWinPct, "43.6%");
    EXPECT_EQ(report.home.stats.PassAcc, "100%");
    EXPECT_EQ(report.away.stats.PassAcc, "71.2%") << "0.7125 goes to the even neighbour";
}

TEST(GameReport, AttackZoneTimeIsMinutesAndTwoDigits) {
    const auto timeOf = [](int seconds) {
        GameSheet game(Montreal, Boston);
        game.away.AttackZone = seconds;
        return reportOf(game).away.stats.AttackZoneText;
    };
    EXPECT_EQ(timeOf(605), "10:05");
    EXPECT_EQ(timeOf(600), "10:00");
    EXPECT_EQ(timeOf(59), "0:59");
}

TEST(GameReport, LastPeriodIsThatOfTheLastGoalOrALaterPenalty) {
    GameSheet game(Montreal, Boston);
    game.goals = {{3, 60, 2, 8}, {2, 60, 2, 8}};
    EXPECT_EQ(reportOf(game, 4).GameLastPeriod, 2) << "the last entry's, not the highest";
    game.penalties = {{1, 60, 18, 8}, {4, 60, 18, 8}, {3, 60, 18, 8}};
    EXPECT_EQ(reportOf(game).GameLastPeriod, 4);
    EXPECT_EQ(reportOf(game).FinalMark, "F/OT");
    game.penalties.resize(1);
    EXPECT_EQ(reportOf(game).FinalMark, "F");
}

TEST(GameReport, GameWithoutGoalsBeginsFromTheFormerLastPeriod) {
    GameSheet game(Montreal, Boston);
    EXPECT_EQ(reportOf(game, 0).FinalMark, "F");
    EXPECT_EQ(reportOf(game, 4).FinalMark, "F/OT");
    game.penalties = {{2, 60, 18, 8}};
    EXPECT_EQ(reportOf(game, 3).GameLastPeriod, 3);
    EXPECT_EQ(reportOf(game, 1).GameLastPeriod, 2);
}

} // namespace
} // namespace iceline
