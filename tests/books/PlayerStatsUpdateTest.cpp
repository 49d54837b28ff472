#include "books/PlayerStatsUpdate.h"

#include "support/NumberedRecord.h"
#include "support/Test.h"

namespace iceline {
namespace {

using namespace test;

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

/// A line in which every field holds its own place, and a real number a half more, but for six games played.
template <class Stats>
Stats sixGames() {
    auto line = numberedRecord<Stats>();
    line.GP = 6;
    return line;
}

TEST(PlayerStatsUpdate, AGameMovesTheseFieldsOfASkatersLine) {
    const auto after = [](const PlayerGame& game, int seasonLength) {
        auto line = sixGames<SkaterStats>();
        updateSkater(line, game, seasonLength);
        return lineOf("", line);
    };
    const PlayerGame game{.goals = 3,
                          .assists = 7,
                          .shots = 5,
                          .penaltyMinutes = 9,
                          .powerPlayGoals = 1,
                          .shorthandedGoals = 2};
    EXPECT_EQ(after(game, 41), "7,5,0.71,11,1.57,16,2.29,13,1.86,38.5,20,13,15,2.86,1.778,16\r\n");
    EXPECT_EQ(after(game, 0), "7,5,0.71,11,1.57,16,2.29,13,1.86,38.5,20,13,15,2.86,1.802,16\r\n")
        << "without a season length its term is left out of the rating";
    SkaterStats nothing;
    updateSkater(nothing, {}, 41);
    EXPECT_EQ(nothing, SkaterStats());
    updateSkater(nothing, {.assists = 1}, 0);
    EXPECT_EQ(nothing.Rating, 0.53); // totals 0.1 + 0.2 + 0.6, averages 0.3 + 0.8
}

TEST(PlayerStatsUpdate, AGameMovesTheseFieldsOfAGoaliesLine) {
    struct Case {
        PlayerGame game;
        int ownGoals;
        int otherGoals;
        int seasonLength;
        const char* line;
    };
    const PlayerGame busy{.goals = 4,
                          .assists = 5,
                          .shots = 47,
                          .penaltyMinutes = 3,
                          .powerPlayGoals = 1,
                          .shorthandedGoals = 2};
    for (const Case& each : {
             Case{busy, 3, 2, 41, "7,6,3,9,6,6,7,55,0.86,0.891,0,13,15,0,7.687,16"},
             Case{busy, 2, 3, 41, "7,6,3,9,5,7,7,55,0.86,0.891,0,13,15,0,7.545,16"},
             Case{{.shots = 28}, 0, 0, 41, "7,2,4,4,5,6,8,36,0.29,0.944,0,12,13,0,7.718,16"}, // a shutout
             Case{{.penaltyMinutes = 2}, 1, 0, 0, "7,2,4,4,6,6,7,8,0.29,0.75,0,12,13,0,0,16"},
             Case{{}, 1, 0, 41, "6,2,3,4,5,6,7,8,0.33,0.75,0,12,13,0,7.787,16"}, // no game, yet worked out
         }) {
        auto line = sixGames<GoalieStats>();
        line.SvPct = 0.911; // the rating goes by the figure before the game
        updateGoalie(line, each.game, each.ownGoals, each.otherGoals, each.seasonLength);
        EXPECT_EQ(lineOf("", line), std::string(each.line) + "\r\n");
    }
    GoalieStats first;
    first.SvPct = 0.9;
    updateGoalie(first, {}, 3, 1, 41);
    EXPECT_EQ(first.SvPct, 0.9) << "without a shot faced the stored figure stays";
    EXPECT_EQ(first.Rating, 0);
    updateGoalie(first, {.assists = 1}, 2, 0, 41);
    EXPECT_EQ(first.GP, 1);
    EXPECT_EQ(first.SO, 0) << "a shutout asks for a shot or a penalty";
    GoalieStats beaten;
    updateGoalie(beaten, {.goals = 2, .shots = 5}, 1, 1, 41);
    EXPECT_EQ(beaten.GAA, 2);
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
