#include "standings/PointsStandings.h"

#include "standings/ClinchMarks.h"
#include "standings/StandingsSupport.h"
#include "support/Test.h"

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
    EXPECT_THAT(wales(), StartsWith("HFD PIT "));
    EXPECT_THAT(campbell(), StartsWith("CGY CHI "));
    of("PIT").Points = 11;
    of("CHI").Points = 11;
    order();
    EXPECT_THAT(wales(), StartsWith("PIT HFD "));
    EXPECT_THAT(campbell(), StartsWith("CHI CGY "));
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
    EXPECT_THAT(state.CampbellSeeds,
                Each(testing::ResultOf([this](TeamIndex team) { return state.ClinchMark[team]; }, "")));
}

TEST_F(Clinching, NothingIsClinchedBeforeTheFirstGame) {
    state.StandingsTable = {};
    mark();
    EXPECT_THAT(state.ClinchMark, Each(""));
}

TEST_F(Clinching, TeamThatCanStillBeEqualledHasNotClinched) {
    of("WSH").GP = 16; // 8 points, reaches 16, what PHI has
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxx-----");
    of("WSH").GP = 17;
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxxx----");
}

TEST_F(Clinching, LevelTeamsGoByWinsAndOnceThoseAreLevelByTheTieBreaksAgainstOneTeamAlone) {
    struct Case {
        TeamStanding phi, ota;
        int wshGames;
        const char* marks;
    };
    const TeamStanding moreWins{.Wins = 7, .Points = 14, .GP = 20};
    const TeamStanding fewerWins{.Wins = 6, .Points = 14, .GP = 20};
    const auto with = [&moreWins](int goalsFor, int goalsAgainst, int powerRanking) {
        TeamStanding level = moreWins;
        level.GF = goalsFor;
        level.GA = goalsAgainst;
        level.PowerRanking = powerRanking;
        return level;
    };
    for (const Case& each : {
             Case{moreWins, fewerWins, 20, "zyxxxxxx----"},
             Case{{.Wins = 7, .Points = 14, .GP = 19}, fewerWins, 20, "zyxxxxx-----"}, // a game is left
             Case{with(60, 50, 4000), fewerWins, 16, "zyxxxxx-----"},                  // WSH reaches 16
             Case{with(60, 50, 4000), with(59, 49, 4000), 10, "z------x----"},         // as good a difference
             Case{with(60, 48, 4000), with(60, 49, 4000), 10, "z------x----"},         // a better difference
             Case{with(60, 48, 4000), with(60, 48, 4000), 10, "z-----------"},         // level in everything
             Case{with(60, 48, 4000), with(60, 48, 4000), 20, "zyxxxxx-----"},         // nor is it more wins
             Case{with(10, 48, 4000), with(60, 48, 3999), 10, "z------x----"}, // a better power ranking
         }) {
        state.ClinchMark = {};
        of("PHI") = each.phi;
        of("OTA") = each.ota;
        of("WSH").GP = each.wshGames;
        mark();
        EXPECT_EQ(walesMarks(), each.marks) << each.phi.GF << " " << each.ota.GF;
    }
}

TEST_F(Clinching, ClinchedDivisionMarksTheFirstSeedToo) {
    of("NJ").GP = 15; // 24 points, can pass LI
    mark();
    EXPECT_EQ(walesMarks(), "yxxxxxxx----");
    state.ClinchMark = {};
    of("NJ").GP = 20;
    of("BUF").GP = 15; // 26 points, can pass BOS
    mark();
    EXPECT_EQ(walesMarks(), "yyxxxxxx----");
}

TEST_F(Clinching, ASeasonEndedByHandGivesNoMarksAndTakesNone) {
    state.SeasonLength = SeasonEndedByHand;
    mark();
    EXPECT_THAT(state.ClinchMark, Each(""));
    state.SeasonLength = 20;
    mark();
    mark();
    EXPECT_EQ(walesMarks(), "zyxxxxxx----");
    state.StandingsTable = {};
    state.SeasonLength = SeasonEndedByHand;
    mark();
    EXPECT_EQ(markOf("BOS") + markOf("LI") + markOf("PHI"), "zyx");
}

} // namespace
} // namespace iceline::test
