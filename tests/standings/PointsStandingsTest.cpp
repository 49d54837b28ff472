#include "standings/PointsStandings.h"

#include "standings/ClinchMarks.h"
#include "standings/StandingsSupport.h"

#include <gmock/gmock.h>

namespace iceline::test {
namespace {

/// A league in mid-season, in memory alone.
class Seeds : public testing::Test {
protected:
    TeamStanding& of(std::string_view abbr) { return state.StandingsTable[team(abbr)]; }

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
        of(abbr) = {.Wins = 15, .Points = 30};
    of("BOS").GF = 1;
    of("LI") = {.Wins = 2, .Points = 4};
    of("WSH") = {.Wins = 1, .Points = 4};
    order();
    EXPECT_EQ(wales(), "BOS LI QUE OTA MTL HFD BUF WSH PIT PHI NYR NJ");
}

TEST_F(Seeds, LeadersLevelOnPointsGoToAdamsAndSmythe) {
    of("PIT") = {.Wins = 5, .Points = 10, .PowerRanking = 5000};
    of("HFD") = {.Wins = 2, .Points = 10};
    of("CHI") = {.Wins = 5, .Points = 10};
    of("CGY") = {.Wins = 2, .Points = 10};
    order();
    EXPECT_THAT(wales(), testing::StartsWith("HFD PIT "));
    EXPECT_THAT(campbell(), testing::StartsWith("CGY CHI "));
    of("PIT").Points = 11;
    of("CHI").Points = 11;
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
            of(abbr) = {.Wins = points / 2, .Points = points, .GP = 20};
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
    of("WSH").GP = 16; // 8 points, reaches 16, what PHI has
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxx-----");
    of("WSH").GP = 17;
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxxx----");
}

TEST_F(Clinching, LevelAtTheEndMoreWinsMakeATeamSafe) {
    of("PHI") = {.Wins = 7, .Points = 14, .GP = 20};
    of("OTA") = {.Wins = 6, .Points = 14, .GP = 20};
    mark();
    EXPECT_EQ(markOf("PHI"), "x");
    EXPECT_EQ(markOf("OTA"), "");
}

TEST_F(Clinching, MoreWinsAreNotEnoughWhileGamesAreLeft) {
    of("PHI") = {.Wins = 7, .Points = 14, .GP = 19};
    of("OTA") = {.Wins = 6, .Points = 14, .GP = 20};
    mark();
    EXPECT_EQ(markOf("PHI"), "");
}

TEST_F(Clinching, MoreWinsMustMakeATeamSafeFromAllFour) {
    of("PHI") = {.Wins = 7, .Points = 14, .GP = 20};
    of("OTA") = {.Wins = 6, .Points = 14, .GP = 20};
    of("WSH").GP = 16;
    mark();
    EXPECT_EQ(markOf("PHI"), "");
}

TEST_F(Clinching, LevelOnPointsAndWinsTheTieBreaksDecideAgainstOneTeamAlone) {
    of("WSH").GP = 10; // can still pass PHI
    for (const std::string_view abbr : {"PHI", "OTA"})
        of(abbr) = {.Wins = 7, .Points = 14, .GP = 20, .GF = 60, .GA = 50, .PowerRanking = 4000};
    of("OTA").GF = 59;
    of("OTA").GA = 49;
    mark();
    EXPECT_EQ(markOf("PHI"), "x") << "as good a difference, more goals";

    state.ClinchMark = {};
    of("OTA").GF = 60;
    of("PHI").GA = 48;
    mark();
    EXPECT_EQ(markOf("PHI"), "x") << "a better difference";

    state.ClinchMark = {};
    of("OTA").GA = 48;
    mark();
    EXPECT_EQ(markOf("PHI"), "") << "level in everything";

    of("OTA").PowerRanking = 3999;
    of("PHI").GF = 10;
    mark();
    EXPECT_EQ(markOf("PHI"), "x") << "a better power ranking";
}

TEST_F(Clinching, ClinchedDivisionMarksTheFirstSeedToo) {
    of("LI") = {.Wins = 14, .Points = 28, .GP = 20};
    of("BUF").GP = 15; // 26 points, can pass BOS
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
