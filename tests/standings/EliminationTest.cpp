#include "standings/Elimination.h"

#include "standings/Alignment.h"
#include "standings/StandingsSupport.h"

#include <gmock/gmock.h>

namespace iceline::test {
namespace {

using enum StandingsFigure;

class Elimination : public testing::Test {
protected:
    void set(std::string_view abbr, Figures figures) { setFigures(table, abbr, figures); }

    std::string adams() const { return abbrs(eliminationOrder(table, teamsOf(Division::Adams))); }
    std::string_view best(std::initializer_list<std::string_view> candidates) const {
        std::vector<TeamIndex> teams;
        for (const std::string_view abbr : candidates)
            teams.push_back(team(abbr));
        return TeamAbbr[bestByElimination(table, teams)];
    }

    StandingsTable table{};
};

TEST_F(Elimination, CompleteTiesGoToTheLastInTheTeamTable) {
    EXPECT_EQ(adams(), "QUE OTA MTL HFD BUF BOS");
    for (const std::string_view abbr : {"BOS", "BUF", "HFD", "MTL", "OTA", "QUE"})
        set(abbr, {{Points, 8}, {Wins, 4}, {PowerRanking, 5025}, {Diff, 1}, {GF, 30}});
    EXPECT_EQ(adams(), "QUE OTA MTL HFD BUF BOS");
}

TEST_F(Elimination, EachKeyOutweighsAllKeysBehindIt) {
    constexpr std::array Keys{Points, Wins, PowerRanking, Diff, GF};
    for (std::size_t deciding = 0; deciding < Keys.size(); ++deciding) {
        table = {};
        for (std::size_t key = 0; key < Keys.size(); ++key) {
            set("BOS", {{Keys[key], key <= deciding ? 5 : 0}});
            set("QUE", {{Keys[key], key < deciding ? 5 : key == deciding ? 4 : 9}});
        }
        EXPECT_EQ(best({"BOS", "QUE"}), "BOS") << deciding;
    }
}

TEST_F(Elimination, GamesPlayedLossesAndGoalsAgainstDecideNothing) {
    set("BOS", {{Points, 6}, {Wins, 3}, {GP, 3}, {GA, 1}});
    set("QUE", {{Points, 6}, {Wins, 3}, {GP, 9}, {Losses, 6}, {GA, 50}});
    EXPECT_EQ(best({"BOS", "QUE"}), "QUE");
}

TEST_F(Elimination, OrdersAllTeamsOfADivisionByTheFirstKeyThatDiffers) {
    set("BOS", {{Points, 10}, {Wins, 5}, {PowerRanking, 100}});
    set("BUF", {{Points, 12}});
    set("HFD", {{Points, 10}, {Wins, 4}});
    set("MTL", {{Points, 10}, {Wins, 5}, {PowerRanking, 200}, {Diff, 1}});
    set("OTA", {{Points, 2}, {Wins, 1}, {PowerRanking, 9000}});
    set("QUE", {{Points, 10}, {Wins, 5}, {PowerRanking, 200}, {Diff, 1}, {GF, 3}});
    EXPECT_EQ(adams(), "BUF QUE MTL BOS HFD OTA");
}

TEST_F(Elimination, NegativeValueDropsOutWhereAnotherQualifies) {
    set("BOS", {{Points, 4}, {Diff, 0}});
    set("QUE", {{Points, 4}, {Diff, -1}, {GF, 20}});
    EXPECT_EQ(best({"BOS", "QUE"}), "BOS");
    set("BOS", {{PowerRanking, 0}});
    set("QUE", {{PowerRanking, -1}, {Diff, 5}});
    EXPECT_EQ(best({"BOS", "QUE"}), "BOS");
}

TEST_F(Elimination, WithoutADifferenceThatQualifiesGoalsDecideNothing) {
    set("BOS", {{Points, 4}, {PowerRanking, 700}, {Diff, -1}, {GF, 30}});
    set("HFD", {{Points, 4}, {PowerRanking, 700}, {Diff, -4}, {GF, 2}});
    set("QUE", {{Points, 4}, {PowerRanking, 600}, {Diff, 2}, {GF, 50}});
    EXPECT_EQ(best({"BOS", "HFD", "QUE"}), "HFD");
}

TEST_F(Elimination, ListWrittenAnewForgetsWhoStoodFirstInIt) {
    // The points put QUE first on the list that the power ranking then writes again with BOS alone.
    set("BOS", {{Points, 4}, {PowerRanking, 700}, {Diff, -1}});
    set("QUE", {{Points, 4}, {PowerRanking, 600}, {Diff, 2}});
    EXPECT_EQ(best({"BOS", "QUE"}), "BOS");
}

TEST_F(Elimination, WithoutAPowerRankingThatQualifiesEvenTheWinsDecideNothing) {
    set("BOS", {{Points, 8}, {Wins, 4}, {PowerRanking, -50}, {Diff, 3}});
    set("BUF", {{Points, 8}, {Wins, 2}, {PowerRanking, -900}});
    set("QUE", {{Points, 6}, {Wins, 3}, {PowerRanking, 900}});
    EXPECT_EQ(best({"BOS", "BUF", "QUE"}), "BUF");
}

TEST_F(Elimination, NegativePointsAndWinsStillGiveEveryTeamOnePlace) {
    for (const std::string_view abbr : {"BOS", "BUF", "HFD"})
        set(abbr, {{Points, -2}, {Wins, -1}});
    set("MTL", {{Wins, -1}});
    EXPECT_EQ(adams(), "QUE OTA MTL HFD BUF BOS");
}

} // namespace
} // namespace iceline::test
