#include "books/PlayerStatsUpdate.h"

#include <gmock/gmock.h>

namespace iceline {
namespace {

constexpr TeamIndex Boston{0};
constexpr TeamIndex Montreal{10};
constexpr int FullSeason = 82;

TEST(SpecialGoals, CountsPowerPlayAndShorthandedGoalsByScorer) {
    GameSheet game(Boston, Montreal);
    game.addGoal(1, 60, Side::Home, Strength::PowerPlay, 4);
    game.addGoal(1, 70, Side::Home, Strength::TwoManPowerPlay, 4);
    game.addGoal(1, 80, Side::Home, Strength::Even, 4);
    game.addGoal(2, 60, Side::Away, Strength::OneManShort, 4);
    game.addGoal(2, 70, Side::Away, Strength::TwoMenShort, 24);
    game.addGoal(2, 80, Side::Away, Strength::TwoManPowerPlay, 7);
    game.addGoal(2, 85, Side::Home, Strength::TwoMenShort, 8);
    game.goals.push_back({2, 90, typeByte(Side::Home, 3), 25}); // no roster has the row
    game.goals.push_back({2, 95, 7, 6});                        // a type that the game does not use
    const SpecialGoals home = specialGoals(game, Side::Home);
    EXPECT_EQ(home.powerPlay[4], 2);
    EXPECT_EQ(home.shorthanded[8], 1);
    EXPECT_EQ(home.shorthanded[4], 0) << "that of the other team's row";
    EXPECT_EQ(home.powerPlay[7], 0);
    const SpecialGoals away = specialGoals(game, Side::Away);
    EXPECT_EQ(away.shorthanded[4], 1);
    EXPECT_EQ(away.shorthanded[24], 1);
    EXPECT_EQ(away.shorthanded[8], 0);
    EXPECT_EQ(away.powerPlay[7], 1);
    EXPECT_EQ(away.powerPlay[4], 0);
}

TEST(PlayerStatsUpdate, ASkatersTotalsAveragesAndRatingGrowWithTheGame) {
    SkaterStats line;
    line.GP = 3;
    line.G = 1;
    line.StarPoints = 20;
    updateSkater(line, {.goals = 2, .assists = 1, .shots = 8, .penaltyMinutes = 2, .powerPlayGoals = 1}, 40);
    EXPECT_EQ(line.GP, 4);
    EXPECT_EQ(line.G, 3);
    EXPECT_EQ(line.A, 1);
    EXPECT_EQ(line.Pts, 4);
    EXPECT_EQ(line.SOG, 8);
    EXPECT_EQ(line.ShotPct, 37.5);
    EXPECT_EQ(line.PPG, 1);
    EXPECT_EQ(line.SHG, 0);
    EXPECT_EQ(line.GPG, 0.75);
    EXPECT_EQ(line.APG, 0.25);
    EXPECT_EQ(line.PtsPG, 1);
    EXPECT_EQ(line.SOGPG, 2);
    EXPECT_EQ(line.PIMPG, 0.5);
    // Totals 0.4 + 0.9 + 0.2 + 2.4 - 1 + 1.2 = 4.1; averages 0.3 + 0.075 + 0.8 - 0.225 + 1.125 - 0.035
    // = 2.04.
    EXPECT_EQ(line.Rating, 1.226);
    EXPECT_EQ(line.StarPoints, 20);
}

TEST(PlayerStatsUpdate, UnevenAveragesAreRoundedToTwoDecimalsAndPercentagesToOne) {
    SkaterStats skater;
    skater.GP = 2;
    updateSkater(skater, {.goals = 2, .assists = 5, .shots = 11, .penaltyMinutes = 8, .shorthandedGoals = 1},
                 41);
    EXPECT_EQ(skater.ShotPct, 18.2);
    EXPECT_EQ(skater.GPG, 0.67);
    EXPECT_EQ(skater.APG, 1.67);
    EXPECT_EQ(skater.PtsPG, 2.33);
    EXPECT_EQ(skater.SOGPG, 3.67);
    EXPECT_EQ(skater.PIMPG, 2.67);
    EXPECT_EQ(skater.SHG, 1);
    EXPECT_EQ(skater.PPG, 0);
    // Totals 0.3 + 0.6 + 1 + 4.2 - 4 + 1.65 + 0.15 = 3.9; averages 0.268 + 0.501 + 1.864 - 1.2015 + 0.546
    // - 0.0256 = 1.9519.
    EXPECT_EQ(skater.Rating, 1.171);

    GoalieStats goalie;
    goalie.GP = 6;
    goalie.SvPct = 0.911;
    updateGoalie(goalie,
                 {.goals = 16, .assists = 1, .shots = 147, .powerPlayGoals = 2, .shorthandedGoals = 3}, 2, 5,
                 41);
    EXPECT_EQ(goalie.GAA, 2.29);
    EXPECT_EQ(goalie.SvPct, 0.891);
    EXPECT_EQ(goalie.GL, 1);
    EXPECT_EQ(goalie.PPG, 2);
    EXPECT_EQ(goalie.SHG, 3);
    // 63.77 + 2.1 - 4.58 + 0 + 0.0171 + 0 = 61.3071
    EXPECT_EQ(goalie.Rating, 6.131);
}

TEST(PlayerStatsUpdate, ASeasonLengthOfZeroLeavesItsTermOutOfASkatersRating) {
    SkaterStats line;
    updateSkater(line, {.assists = 1}, 0);
    // Totals 0.1 + 0.2 + 0.6 = 0.9; averages 0.3 + 0.8 = 1.1.
    EXPECT_EQ(line.Rating, 0.53);
    EXPECT_EQ(line.GP, 1);
}

TEST(PlayerStatsUpdate, ABlankLineInTheGameIsNoGamePlayed) {
    SkaterStats skater;
    updateSkater(skater, {}, FullSeason);
    EXPECT_EQ(skater, SkaterStats());

    GoalieStats goalie;
    goalie.GP = 2;
    goalie.GA = 5;
    goalie.SvPct = 0.9;
    const GoalieStats before = goalie;
    updateGoalie(goalie, {}, 3, 1, FullSeason);
    EXPECT_EQ(goalie.GP, before.GP);
    EXPECT_EQ(goalie.GW, 0);
    EXPECT_EQ(goalie.GAA, 2.5) << "the average is worked out again all the same";
    EXPECT_EQ(goalie.SvPct, 0.9) << "without a shot faced the stored figure stays";
}

TEST(PlayerStatsUpdate, AGoaliesRatingGoesByHisSavesBeforeTheGame) {
    GoalieStats line;
    line.GP = 1;
    line.GA = 3;
    line.SA = 20;
    line.SvPct = 0.85;
    line.GL = 1;
    updateGoalie(line, {.shots = 30, .penaltyMinutes = 2}, 4, 0, 40);
    EXPECT_EQ(line.GP, 2);
    EXPECT_EQ(line.SO, 1);
    EXPECT_EQ(line.GW, 1);
    EXPECT_EQ(line.SA, 50);
    EXPECT_EQ(line.GAA, 1.5);
    EXPECT_EQ(line.SvPct, 0.94);
    // 59.5 + 2.5 - 3 + 5 + 0.005 + 0.15 = 64.155; of the tenth the tie 6.4155 is no tie in binary.
    EXPECT_NEAR(line.Rating, 6.416, 0.0011);
    EXPECT_EQ(line.Unused11, 0);
}

TEST(PlayerStatsUpdate, AGoaliesShutoutAsksForAShotOrAPenalty) {
    GoalieStats assistOnly;
    updateGoalie(assistOnly, {.assists = 1}, 2, 0, FullSeason);
    EXPECT_EQ(assistOnly.GP, 1);
    EXPECT_EQ(assistOnly.GW, 1);
    EXPECT_EQ(assistOnly.SO, 0);
    EXPECT_EQ(assistOnly.SvPct, 0);

    GoalieStats beaten;
    updateGoalie(beaten, {.goals = 1, .shots = 1}, 1, 1, FullSeason);
    EXPECT_EQ(beaten.SO, 0);
    EXPECT_EQ(beaten.GT, 1);
}

TEST(PlayerStatsUpdate, ASeasonLengthOfZeroLeavesAGoalieWithoutRating) {
    GoalieStats line;
    updateGoalie(line, {.shots = 20}, 1, 0, 0);
    EXPECT_EQ(line.Rating, 0);
}

TEST(PlayerStatsUpdate, BothGoaliesWhoPlayedGetTheDecision) {
    GameSheet game(Boston, Montreal);
    game.addShot(Side::Home, 5);
    game.away.goalie = RosterIndex(1);
    game.addGoal(3, 10, Side::Home, Strength::Even, 5);
    TeamPlayerStats montreal;
    montreal[0] = montreal[1] = montreal[2] = GoalieStats();
    updatePlayerStats(montreal, game, Side::Away, FullSeason);
    EXPECT_EQ(std::get<GoalieStats>(montreal[0]).GL, 1);
    EXPECT_EQ(std::get<GoalieStats>(montreal[0]).SO, 1);
    EXPECT_EQ(std::get<GoalieStats>(montreal[1]).GL, 1);
    EXPECT_EQ(std::get<GoalieStats>(montreal[1]).GA, 1);
    EXPECT_EQ(std::get<GoalieStats>(montreal[2]), GoalieStats());
    TeamPlayerStats boston;
    updatePlayerStats(boston, game, Side::Home, FullSeason);
    EXPECT_EQ(std::get<SkaterStats>(boston[5]).SOG, 2);
    EXPECT_EQ(std::get<SkaterStats>(boston[5]).Pts, 1);
}

} // namespace
} // namespace iceline
