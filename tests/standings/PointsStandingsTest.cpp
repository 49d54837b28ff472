#include "standings/PointsStandings.h"

#include "standings/ClinchMarks.h"
#include "standings/ConferenceStandings.h"
#include "standings/StandingsSupport.h"

#include <gmock/gmock.h>

namespace iceline::test {
namespace {

using enum StandingsFigure;

/// A league in mid-season, in memory alone.
class Seeds : public testing::Test {
protected:
    void set(std::string_view abbr, Figures figures) { setFigures(state.StandingsTable, abbr, figures); }

    void order() {
        orderDivisions(state);
        seedConferences(state);
    }

    std::string wales() const { return abbrs(state.WalesSeeds); }
    std::string campbell() const { return abbrs(state.CampbellSeeds); }

    ApplicationState state;
};

TEST_F(Seeds, LeadersComeFirstWhateverTheirPointsAndTheOthersByElimination) {
    for (const std::string_view abbr : {"BOS", "BUF", "HFD", "MTL", "OTA", "QUE"})
        set(abbr, {{Points, 30}, {Wins, 15}});
    set("BOS", {{GF, 1}});
    set("LI", {{Points, 4}, {Wins, 2}});
    set("WSH", {{Points, 4}, {Wins, 1}});
    order();
    EXPECT_EQ(wales(), "BOS LI QUE OTA MTL HFD BUF WSH PIT PHI NYR NJ");
}

TEST_F(Seeds, LeadersLevelOnPointsGoToAdamsAndSmythe) {
    set("PIT", {{Points, 10}, {Wins, 5}, {PowerRanking, 5000}});
    set("HFD", {{Points, 10}, {Wins, 2}});
    set("CHI", {{Points, 10}, {Wins, 5}});
    set("CGY", {{Points, 10}, {Wins, 2}});
    order();
    EXPECT_THAT(wales(), testing::StartsWith("HFD PIT "));
    EXPECT_THAT(campbell(), testing::StartsWith("CGY CHI "));
    set("PIT", {{Points, 11}});
    set("CHI", {{Points, 11}});
    order();
    EXPECT_THAT(wales(), testing::StartsWith("PIT HFD "));
    EXPECT_THAT(campbell(), testing::StartsWith("CHI CGY "));
}

/// The Wales Conference near the end of a season of 20 games. In its order by points, which makes the first
/// of each division its leader: BOS and LI lead.
class Clinching : public Seeds {
protected:
    Clinching() {
        state.SeasonLength = 20;
        int points = 30;
        for (const std::string_view abbr :
             {"BOS", "LI", "BUF", "NJ", "HFD", "NYR", "MTL", "PHI", "OTA", "PIT", "QUE", "WSH"}) {
            set(abbr, {{Points, points}, {Wins, points / 2}, {GP, 20}});
            points -= 2;
        }
    }

    void mark() {
        order();
        markClinched(state);
    }

    std::string markOf(std::string_view abbr) const { return state.ClinchMark[team(abbr)]; }

    std::string walesMarks() const {
        std::string marks;
        for (const TeamIndex team : state.WalesSeeds)
            marks += state.ClinchMark[team].empty() ? "-" : state.ClinchMark[team];
        return marks;
    }
};

TEST_F(Clinching, FinishedSeasonMarksEightTeamsBothLeadersAndTheFirst) {
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxxx----");
    EXPECT_THAT(state.CampbellSeeds, testing::Each(testing::ResultOf(
                                         [this](TeamIndex team) { return state.ClinchMark[team]; }, "")));
}

TEST_F(Clinching, NothingIsClinchedBeforeTheFirstGame) {
    state.StandingsTable = {};
    mark();
    EXPECT_THAT(state.ClinchMark, testing::Each(""));
}

TEST_F(Clinching, TeamThatCanStillBeEqualledHasNotClinched) {
    set("WSH", {{GP, 16}}); // 8 points, reaches 16, what PHI has
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxx-----");
    set("WSH", {{GP, 17}});
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxxx----");
}

TEST_F(Clinching, LevelAtTheEndMoreWinsMakeATeamSafe) {
    set("PHI", {{Points, 14}, {Wins, 7}});
    set("OTA", {{Points, 14}, {Wins, 6}});
    mark();
    EXPECT_EQ(markOf("PHI"), "x");
    EXPECT_EQ(markOf("OTA"), "");
}

TEST_F(Clinching, MoreWinsAreNotEnoughWhileGamesAreLeft) {
    set("PHI", {{Points, 14}, {Wins, 7}, {GP, 19}});
    set("OTA", {{Points, 14}, {Wins, 6}});
    mark();
    EXPECT_EQ(markOf("PHI"), "");
}

TEST_F(Clinching, MoreWinsMustMakeATeamSafeFromAllFour) {
    set("PHI", {{Points, 14}, {Wins, 7}});
    set("OTA", {{Points, 14}, {Wins, 6}});
    set("WSH", {{GP, 16}});
    mark();
    EXPECT_EQ(markOf("PHI"), "");
}

TEST_F(Clinching, LevelOnPointsAndWinsTheTieBreaksDecideAgainstOneTeamAlone) {
    set("WSH", {{GP, 10}}); // can still pass PHI
    for (const std::string_view abbr : {"PHI", "OTA"})
        set(abbr, {{Points, 14}, {Wins, 7}, {PowerRanking, 4000}, {GF, 60}, {GA, 50}});
    set("OTA", {{GF, 59}, {GA, 49}});
    mark();
    EXPECT_EQ(markOf("PHI"), "x") << "as good a difference, more goals";

    state.ClinchMark = {};
    set("OTA", {{GF, 60}});
    set("PHI", {{GA, 48}});
    mark();
    EXPECT_EQ(markOf("PHI"), "x") << "a better difference";

    state.ClinchMark = {};
    set("OTA", {{GA, 48}});
    mark();
    EXPECT_EQ(markOf("PHI"), "") << "level in everything";
}

TEST_F(Clinching, ClinchedDivisionMarksTheFirstSeedToo) {
    set("LI", {{Points, 28}, {Wins, 14}});
    set("BUF", {{GP, 15}}); // 26 points, can pass BOS
    mark();
    EXPECT_EQ(state.WalesSeeds[0], team("BOS"));
    EXPECT_EQ(markOf("LI"), "y");
    EXPECT_EQ(markOf("BOS"), "y");
}

TEST_F(Clinching, MarkOnceEarnedStays) {
    mark();
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxxx----");

    state.StandingsTable = {};
    state.SeasonLength = SeasonEndedByHand;
    mark();
    EXPECT_EQ(markOf("BOS"), "z");
    EXPECT_EQ(markOf("LI"), "y");
    EXPECT_EQ(markOf("PHI"), "x");
}

TEST_F(Clinching, SeasonEndedByHandGivesNoMarks) {
    state.SeasonLength = SeasonEndedByHand;
    mark();
    EXPECT_THAT(state.ClinchMark, testing::Each(""));
}

} // namespace
} // namespace iceline::test
