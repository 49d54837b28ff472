#include "playoffs/PlayoffResult.h"

#include <gtest/gtest.h>

namespace iceline {
namespace {

constexpr TeamIndex Boston{0};
constexpr TeamIndex Buffalo{1};
constexpr TeamIndex Montreal{10};

PlayoffSeriesTable tableWith(int series, PlayoffSeriesRecord record) {
    PlayoffSeriesTable table;
    table[series] = record;
    return table;
}

TEST(SeriesOfGame, IsTheOpenSeriesOfTheTwoTeamsInEitherOrder) {
    const auto table = tableWith(3, {3, 3, Boston, Montreal});
    ASSERT_TRUE(seriesOfGame(table, Boston, Montreal));
    EXPECT_EQ(seriesOfGame(table, Boston, Montreal)->series, 3);
    EXPECT_TRUE(seriesOfGame(table, Boston, Montreal)->homeIsTeamA);
    EXPECT_FALSE(seriesOfGame(table, Montreal, Boston)->homeIsTeamA);
    EXPECT_FALSE(seriesOfGame(table, Boston, Buffalo));
    EXPECT_FALSE(seriesOfGame(tableWith(3, {4, 0, Boston, Montreal}), Boston, Montreal)) << "decided";
    EXPECT_FALSE(seriesOfGame(tableWith(3, {0, 4, Boston, Montreal}), Boston, Montreal)) << "decided";
    EXPECT_FALSE(seriesOfGame(tableWith(9, {0, 0, Boston, BlankTeam}), Boston, Montreal)) << "not known yet";
}

TEST(SeriesOfGame, IsTheLastThatFits) {
    auto table = tableWith(2, {0, 0, Boston, Montreal});
    table[14] = {0, 0, Montreal, Boston};
    EXPECT_EQ(seriesOfGame(table, Boston, Montreal)->series, 14);
}

TEST(PlayoffResult, GivesTheGameToTheWinnerAndATieToNobody) {
    auto table = tableWith(0, {0, 0, Boston, Montreal});
    recordResult(table, {0, true}, 2, 1);
    recordResult(table, {0, false}, 2, 1);
    recordResult(table, {0, false}, 0, 1);
    recordResult(table, {0, true}, 3, 3);
    EXPECT_EQ(table[0], (PlayoffSeriesRecord{2, 1, Boston, Montreal}));
    EXPECT_EQ(table[8].TeamA, BlankTeam);
}

struct Move {
    int from;
    int to;
    bool asTeamA;
};

TEST(PlayoffResult, TheFourthWinMovesTheTeamOnAlongTheBracket) {
    for (const Move& move : {Move{0, 8, true},
                             {1, 8, false},
                             {2, 9, true},
                             {3, 9, false},
                             {4, 10, true},
                             {7, 11, false},
                             {8, 12, true},
                             {9, 12, false},
                             {11, 13, false},
                             {12, 14, true},
                             {13, 14, false}}) {
        auto table = tableWith(move.from, {2, 3, Boston, Montreal});
        recordResult(table, {move.from, true}, 0, 1);
        EXPECT_EQ(table[move.to].TeamA, move.asTeamA ? Montreal : BlankTeam) << move.from;
        EXPECT_EQ(table[move.to].TeamB, move.asTeamA ? BlankTeam : Montreal) << move.from;
        EXPECT_EQ(table[move.to].WinsA + table[move.to].WinsB, 0);
    }
}

TEST(PlayoffResult, TheFinalEndsTheYear) {
    auto table = tableWith(14, {3, 0, Boston, Montreal});
    recordResult(table, {14, true}, 1, 0);
    EXPECT_EQ(table[14], (PlayoffSeriesRecord{4, 0, Boston, Montreal}));
    EXPECT_FALSE(seriesOfGame(table, Boston, Montreal));
}

} // namespace
} // namespace iceline
